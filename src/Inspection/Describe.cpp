#include "Inspection/Describe.h"

#include "Inspection/Attempt.h"
#include "Inspection/KeylessMembers.h"
#include "Inspection/KnownClass.h"
#include "Inspection/RecordInfo.h"
#include "Inspection/Trials.h"
#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "Proc/EffectSettings/HelperSettings.h"
#include "Proc/ImplNames.h"
#include "Proc/Reflection/EnumNameTable.h"
#include "Proc/Settings/StoredKeys.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>
#include <memory>
#include <span>
#include <utility>

namespace Ombrel::Inspection
{
namespace
{

using PhotoCore::EffectClass;
using PhotoCore::HelperSettings;
using PhotoCore::IEffectSettings;
using Proc::FieldSchema;
using Proc::RecordSchema;
using Proc::ValueKind;
using Proc::ValueSchema;

struct Shape
{
    ValueForm form;
    std::uint8_t bits;
    bool isSigned;
};

// In the order of the kinds.
constexpr std::array<Shape, 17> SHAPES{{
    {ValueForm::Integer, 32, true},
    {ValueForm::Integer, 32, false},
    {ValueForm::Integer, 8, false},
    {ValueForm::Integer, 64, true},
    {ValueForm::Integer, 64, false},
    {ValueForm::Float, 64, false},
    {ValueForm::Float, 32, false},
    {ValueForm::Bool, 0, false},
    {ValueForm::Text, 0, false},
    {ValueForm::Name, 0, false},
    {ValueForm::Colour, 0, false},
    {ValueForm::ColourMap, 0, false},
    {ValueForm::Record, 0, false},
    {ValueForm::List, 0, false},
    {ValueForm::Set, 0, false},
    {ValueForm::Effect, 0, false},
    {ValueForm::Other, 0, false},
}};

static_assert(SHAPES.size() == static_cast<std::size_t>(ValueKind::Other) + 1);

// In the order of the forms.
constexpr std::array<std::string_view, 12> FORMS{"int",        "float",  "bool", "text", "name",   "colour",
                                                 "colour map", "record", "list", "set",  "effect", "other"};

static_assert(FORMS.size() == static_cast<std::size_t>(ValueForm::Other) + 1);

/// Writes the description of one class. A record is described when it is first met, so that one that holds itself is met again
/// and no more.
class Describer
{
public:
    /// @param schema of the class; null for one without keys of its own, and where they are not known
    Describer(const EffectClass* effectClass, const RecordSchema* schema) : m_class(effectClass), m_schema(schema) {}

    EffectDescription Run(EffectDescription description)
    {
        m_description = std::move(description);
        AddBaseKeys();
        if (m_schema)
        {
            const Trials trials(*m_class, *m_schema);
            m_description.fields.reserve(m_description.fields.size() + m_schema->fields.size());
            AddFields(m_description.fields, {m_schema, {}}, &trials);
            AddRecords(&trials);
        }
        return std::move(m_description);
    }

private:
    // No comparison of effects looks at them.
    void AddBaseKeys()
    {
        const auto add = [this](std::string_view key, const ValueSchema& schema) -> FieldDescription&
        {
            FieldDescription& field = m_description.fields.emplace_back();
            field.key = key;
            field.value = ValueOf(schema, {});
            field.isCompared = false;
            return field;
        };
        FieldDescription& name = add(Proc::StoredKeys::IMPL_NAME, {ValueKind::String});
        name.defaultValue = Proc::ImplNames::DEFAULT_NAME;
        name.access = "GetImplName";

        FieldDescription& helper =
            add(Proc::StoredKeys::HELPER_SETTINGS, {.kind = ValueKind::Record, .record = &HelperSettings::Schema});
        helper.access = "HelperSetting, GetHelperSettings";
        helper.defaultValue.makeMap();
        const std::vector<PropertyTree>& defaults = m_infos.DefaultsOf(HelperSettings::Schema());
        for (std::size_t index = 0; index != defaults.size(); ++index)
        {
            helper.defaultValue[HelperSettings::Schema().fields[index].key] = defaults[index];
        }
        AddRecords(nullptr);
    }

    // Without trials the fields are those of what every effect has.
    void AddFields(std::vector<FieldDescription>& fields, const RecordPlace& place, const Trials* trials)
    {
        constexpr Proc::WriteFlags thin{.resetTargets = true, .omitDefaults = true};
        const RecordSchema& schema = *place.schema;
        PropertyTree written;
        Attempt([&] { schema.write(schema.defaults(), written.makeMap(), &thin, 0); });
        std::span<const PropertyTree> defaults;
        Attempt([&] { defaults = m_infos.DefaultsOf(schema); });
        for (std::size_t index = 0; index != schema.fields.size(); ++index)
        {
            const FieldSchema& field = schema.fields[index];
            FieldDescription& described = fields.emplace_back();
            described.key = field.key;
            described.access = field.access;
            described.defaultValue = defaults.empty() ? PropertyTree() : defaults[index];
            described.isCompared = trials ? trials->IsCompared(place, index) : false;
            described.isAlwaysWritten = written.contains(field.key);
            described.isComputed = trials && trials->IsComputed(place, index);
            Way way = place.way;
            way.push_back({.key = field.key});
            described.value = ValueOf(*field.value, std::move(way));
        }
    }

    // The records that were met and are not described yet, and what is met in them.
    void AddRecords(const Trials* trials)
    {
        for (; m_described != m_places.size(); ++m_described)
        {
            const RecordPlace place = m_places[m_described];
            std::vector<FieldDescription> fields;
            AddFields(fields, place, trials);
            m_description.records.push_back({m_names.at(place.schema), std::move(fields), KeylessMembersOf(*place.schema)});
        }
    }

    ValueDescription ValueOf(const ValueSchema& schema, Way way)
    {
        const Shape& shape = SHAPES[static_cast<std::size_t>(schema.kind)];
        ValueDescription value;
        value.form = shape.form;
        value.bits = shape.bits;
        value.isSigned = shape.isSigned;
        if (schema.names)
        {
            value.takesNumbers = schema.takesNumbers;
            value.fallback = schema.names->fallback;
            for (const Proc::EnumNameRow& row : schema.names->rows)
            {
                value.names.push_back({std::string(row.name), row.value});
            }
        }
        if (schema.record)
        {
            value.record = NameOf(schema.record(), std::move(way));
        }
        else if (schema.element && schema.kind != ValueKind::ColorMap)
        {
            way.push_back({.key = {}, .isElement = true});
            value.element.push_back(ValueOf(*schema.element, std::move(way)));
        }
        return value;
    }

    // Every pair has one name, and records of callers may.
    const std::string& NameOf(const RecordSchema& schema, Way way)
    {
        const auto [entry, isNew] = m_names.try_emplace(&schema);
        if (isNew)
        {
            std::string name(schema.name);
            const auto isTaken = [&](const auto& other) { return other.second == name; };
            for (int number = 2; std::ranges::any_of(m_names, isTaken); ++number)
            {
                name = std::string(schema.name) + std::to_string(number);
            }
            entry->second = std::move(name);
            m_places.push_back({&schema, std::move(way)});
        }
        return entry->second;
    }

    const EffectClass* m_class;
    const RecordSchema* m_schema;
    EffectDescription m_description;
    RecordInfos m_infos;
    std::map<const RecordSchema*, std::string> m_names;
    std::vector<RecordPlace> m_places; // of the records, by where each was met first
    std::size_t m_described = 0;       // how many of them are described
};

// Asks an effect of the class.
void Ask(const EffectClass* effectClass, EffectDescription& description)
{
    Attempt(
        [&]
        {
            const std::shared_ptr<IEffectSettings> effect =
                effectClass ? effectClass->create() : IEffectSettings::CreateEffectSettings(description.classId);
            if (effect)
            {
                description.inputs = effect->GetInputType();
                description.isAdditive = effect->IsAdditive();
                description.hasPropertyAccess = effect->GetPropertyAccess() != nullptr;
                description.members = KeylessMembersOf(*effect);
            }
        });
}

} // namespace

std::string TextOf(const ValueDescription& value)
{
    std::string text;
    const ValueDescription* part = &value;
    for (; !part->element.empty(); part = &part->element.front())
    {
        text += std::string(FORMS[static_cast<std::size_t>(part->form)]) + " of ";
    }
    switch (part->form)
    {
    case ValueForm::Integer:
        return text + (part->isSigned ? "int" : "uint") + std::to_string(part->bits);
    case ValueForm::Float:
        return text + "float" + std::to_string(part->bits);
    case ValueForm::Record:
        return text + part->record;
    default:
        return text + std::string(FORMS[static_cast<std::size_t>(part->form)]);
    }
}

const RecordDescription* EffectDescription::FindRecord(std::string_view name) const noexcept
{
    const auto found = std::ranges::find(records, name, &RecordDescription::name);
    return found == records.end() ? nullptr : &*found;
}

std::optional<EffectDescription> Describe(std::string_view classId)
{
    const EffectClass* const effectClass = PhotoCore::FindEffectClass(classId);
    const bool isRegistered = PhotoCore::IsRegistered(classId);
    if (!effectClass && !isRegistered)
    {
        return std::nullopt;
    }
    EffectDescription description;
    description.classId = classId;
    description.isRegistered = isRegistered;
    description.areKeysKnown = AreKeysKnown(effectClass);
    if (effectClass)
    {
        description.className = effectClass->className;
    }
    Ask(effectClass, description);
    return Describer(effectClass, effectClass ? effectClass->getSchema() : nullptr).Run(std::move(description));
}

} // namespace Ombrel::Inspection
