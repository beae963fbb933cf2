#include "Inspection/JsonSchema.h"

#include "Inspection/Attempt.h"
#include "Inspection/KnownClass.h"
#include "Inspection/SchemaParts.h"
#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "Proc/EffectSettings/HelperSettings.h"
#include "Proc/ImplNames.h"
#include "Proc/Reflection/EnumNameTable.h"
#include "Proc/Reflection/Schema.h"
#include "Proc/Settings/StoredKeys.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace Ombrel::Inspection
{
namespace
{

using PhotoCore::EffectClass;
using PhotoCore::HelperSettings;
using Proc::RecordSchema;
using Proc::ValueKind;
using Proc::ValueSchema;

namespace StoredKeys = Proc::StoredKeys;

// Of "$defs". What is one of a kind has no dot in its name.
constexpr std::string_view ANY_EFFECT = "effect";
constexpr std::string_view ONE_EFFECT = "the-effect";
constexpr std::string_view EFFECT = "effect.";
constexpr std::string_view RECORD = "record.";

/// Writes one schema. What is referred to is defined once, when it is first referred to.
class SchemaWriter
{
public:
    explicit SchemaWriter(const JsonSchemaOptions& options) : m_options(options) {}

    /// Of all effects.
    PropertyTree Write()
    {
        DefineAnyEffect();
        return Written("Stored effects", ANY_EFFECT);
    }

    PropertyTree Write(const std::string& classId)
    {
        PropertyTree& one = m_definitions[ONE_EFFECT];
        one = RefTo(DefineEffect(classId));
        RequireName(one);
        DefineRecords();
        if (m_isAnyEffect)
        {
            DefineAnyEffect();
        }
        return Written("Stored effects of the class " + classId, ONE_EFFECT);
    }

private:
    PropertyTree Written(const std::string& title, std::string_view effect)
    {
        PropertyTree schema;
        schema["$schema"] = "https://json-schema.org/draft/2020-12/schema";
        schema["title"] = title;
        schema["if"] = OfType("array");
        schema["then"]["items"] = RefTo(effect);
        schema["else"] = RefTo(effect);
        schema["$defs"] = std::move(m_definitions);
        return schema;
    }

    // An effect in a list may be null, of which nothing but its type is asked.
    static void RequireName(PropertyTree& effect)
    {
        effect["type"].append("object");
        effect["type"].append("null");
        effect["required"].append(std::string(StoredKeys::NAME));
    }

    void DefineAnyEffect()
    {
        const std::vector<std::string> ids = PhotoCore::RegisteredClassIds();
        PropertyTree any;
        any["title"] = "Effect";
        RequireName(any);
        any["properties"][StoredKeys::NAME]["enum"] = Names(ids);
        for (const std::string& id : ids)
        {
            PropertyTree choice;
            choice["if"]["required"].append(std::string(StoredKeys::NAME));
            choice["if"]["properties"][StoredKeys::NAME]["const"] = id;
            choice["then"] = RefTo(DefineEffect(id));
            any["allOf"].append(std::move(choice));
        }
        m_definitions[ANY_EFFECT] = std::move(any);
        DefineRecords();
    }

    std::string DefineEffect(const std::string& id)
    {
        std::string name = std::string(EFFECT) + id;
        if (m_definitions.contains(name))
        {
            return name;
        }
        const EffectClass* const effectClass = PhotoCore::FindEffectClass(id);
        PropertyTree effect;
        effect["title"] = effectClass ? std::string(effectClass->className) : id;
        PropertyTree& properties = effect["properties"];
        properties[StoredKeys::NAME]["const"] = id;
        if (AreKeysKnown(effectClass))
        {
            PropertyTree& implName = properties[StoredKeys::IMPL_NAME];
            implName = ValueOf({ValueKind::String});
            implName["default"] = Proc::ImplNames::DEFAULT_NAME;
            properties[StoredKeys::HELPER_SETTINGS] = RefTo(NameOf(HelperSettings::Schema()));
            if (const RecordSchema* schema = effectClass->getSchema())
            {
                AddFields(properties, *schema);
            }
            Close(effect);
        }
        m_definitions[name] = std::move(effect);
        return name;
    }

    void Close(PropertyTree& map) const
    {
        if (!m_options.allowUnknownKeys)
        {
            map["additionalProperties"] = false;
        }
    }

    // The records that were referred to, and those that they refer to.
    void DefineRecords()
    {
        for (; m_defined != m_records.size(); ++m_defined)
        {
            const RecordSchema& schema = *m_records[m_defined];
            PropertyTree record = OfType("object");
            record["title"] = std::string(schema.name);
            record["properties"].makeMap();
            AddFields(record["properties"], schema);
            Close(record);
            m_definitions[m_names.at(&schema)] = std::move(record);
        }
    }

    void AddFields(PropertyTree& properties, const RecordSchema& schema)
    {
        for (std::size_t index = 0; index != schema.fields.size(); ++index)
        {
            PropertyTree& property = properties[schema.fields[index].key];
            property = ValueOf(*schema.fields[index].value);
            AddDefault(property, schema, index);
        }
    }

    // Without what is in a nested record as the record itself has it. A default without a name, or that is no finite number,
    // has no form that passes.
    static void AddDefault(PropertyTree& property, const RecordSchema& schema, std::size_t index)
    {
        constexpr Proc::WriteFlags thin{.resetTargets = true, .omitDefaults = true};
        const ValueSchema& value = *schema.fields[index].value;
        PropertyTree byDefault;
        Attempt(
            [&]
            {
                schema.writeField(index, schema.defaults(), byDefault, &thin);
                const auto isDefault = [&](const auto& row) { return byDefault.getScalar().toString() == row.name; };
                const bool hasForm = value.kind != ValueKind::Enum || std::ranges::any_of(value.names->rows, isDefault);
                if (hasForm && IsFinite(byDefault))
                {
                    property["default"] = std::move(byDefault);
                }
            });
    }

    PropertyTree ValueOf(const ValueSchema& schema)
    {
        switch (schema.kind)
        {
        case ValueKind::Int32:
            return Shared("int32", &IntegerLike<std::int32_t>);
        case ValueKind::UInt32:
            return Shared("uint32", &IntegerLike<std::uint32_t>);
        case ValueKind::UInt8:
            return Shared("uint8", &IntegerLike<std::uint8_t>);
        case ValueKind::Int64:
        case ValueKind::UInt64: // stored as the signed one of the same bits
            return Shared("int64", &IntegerLike<std::int64_t>);
        case ValueKind::Float64:
        case ValueKind::Float32:
            return m_options.nonFiniteAsText ? Shared("float", &FloatOrText) : OfType("number");
        case ValueKind::Bool:
            return OfType("boolean");
        case ValueKind::String:
            return m_options.nonFiniteAsText ? Shared("text", &TextThatIsNoFloat) : OfType("string");
        case ValueKind::Enum:
            return NameIn(*schema.names);
        case ValueKind::Color:
            return Shared("colour", &Colour);
        case ValueKind::ColorMap:
            return ColourMapOf(schema.element->record());
        case ValueKind::Record:
            return RefTo(NameOf(schema.record()));
        case ValueKind::List:
            return ListOf(*schema.element);
        case ValueKind::Set:
            return SetOf(*schema.element);
        case ValueKind::Effect:
            m_isAnyEffect = true;
            return RefTo(ANY_EFFECT);
        case ValueKind::Other:
            break;
        }
        PropertyTree anything;
        anything.makeMap();
        return anything;
    }

    PropertyTree Shared(std::string_view name, PropertyTree (*make)())
    {
        if (!m_definitions.contains(name))
        {
            m_definitions[name] = make();
            m_definitions[name]["title"] = std::string(name);
        }
        return RefTo(name);
    }

    PropertyTree ListOf(const ValueSchema& element)
    {
        PropertyTree list = OfType("array");
        list["items"] = ValueOf(element);
        return list;
    }

    // Neither key of an element may be missing.
    PropertyTree ColourMapOf(const RecordSchema& record)
    {
        PropertyTree list = OfType("array");
        PropertyTree& element = list["items"];
        element = OfType("object");
        for (const Proc::FieldSchema& field : record.fields)
        {
            element["required"].append(std::string(field.key));
            element["properties"][field.key] = ValueOf(*field.value);
        }
        Close(element);
        return list;
    }

    // Floats that differ in a document may be the same when they are read, and a NaN is no other's like.
    PropertyTree SetOf(const ValueSchema& element)
    {
        PropertyTree set = ListOf(element);
        if (element.kind <= ValueKind::Color && element.kind != ValueKind::Float64 && element.kind != ValueKind::Float32)
        {
            set["uniqueItems"] = true;
        }
        return set;
    }

    // Every pair has one name, and records of callers may.
    const std::string& NameOf(const RecordSchema& schema)
    {
        const auto [entry, isNew] = m_names.try_emplace(&schema);
        if (isNew)
        {
            const std::string first = std::string(RECORD) + std::string(schema.name);
            std::string name = first;
            for (int number = 2; !m_taken.insert(name).second; ++number)
            {
                name = first + std::to_string(number);
            }
            entry->second = std::move(name);
            m_records.push_back(&schema);
        }
        return entry->second;
    }

    const JsonSchemaOptions& m_options;
    PropertyTree m_definitions;
    std::map<const RecordSchema*, std::string> m_names;
    std::set<std::string> m_taken;
    std::vector<const RecordSchema*> m_records; // in the order of the references
    std::size_t m_defined = 0;                  // how many of them are defined
    bool m_isAnyEffect = false;                 // whether any effect is referred to
};

} // namespace

PropertyTree JsonSchema(const JsonSchemaOptions& options)
{
    return SchemaWriter(options).Write();
}

std::optional<PropertyTree> JsonSchema(std::string_view classId, const JsonSchemaOptions& options)
{
    return PhotoCore::IsRegistered(classId) ? std::optional(SchemaWriter(options).Write(std::string(classId))) : std::nullopt;
}

} // namespace Ombrel::Inspection
