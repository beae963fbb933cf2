#include "Inspection/FormDefaults.h"

#include "Inspection/Attempt.h"
#include "Inspection/KnownClass.h"
#include "Inspection/Values.h"
#include "Proc/EffectSettings/EffectSettings.h"
#include "Proc/ImplNames.h"
#include "Proc/Settings/StoredKeys.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <memory>
#include <string>
#include <utility>

namespace Ombrel::Inspection
{
namespace
{

using PhotoCore::EffectClass;
using PhotoCore::EffectSettings;
using PhotoCore::HelperSettings;
using PhotoCore::IEffectSettings;
using Proc::RecordSchema;
using Proc::ValueKind;
using Proc::ValueSchema;

namespace StoredKeys = Proc::StoredKeys;

constexpr Proc::ReadFlags RESET_MISSING{.resetMissing = true};
constexpr Proc::WriteFlags WHOLE{.resetTargets = true, .omitDefaults = false};

// Whether a default is read again from the form in which it is written. An enumeration's value without a name is written as
// "", which is read as another. An effect is read as a new one, while every record without the key shares the one of the
// default record.
bool HasForm(const PropertyTree& byDefault, const ValueSchema& schema)
{
    switch (schema.kind)
    {
    case ValueKind::Other:
        return true;
    case ValueKind::Effect:
        return byDefault.isNull();
    case ValueKind::Enum:
        return IsText(byDefault) && !byDefault.getScalar().toString().empty();
    case ValueKind::Record:
        return byDefault.isMap() && std::ranges::all_of(schema.record().fields,
                                                        [&](const Proc::FieldSchema& field)
                                                        {
                                                            const auto child = byDefault.getMap().find(field.key);
                                                            return child != byDefault.getMap().end() &&
                                                                   HasForm(child->second, *field.value);
                                                        });
    case ValueKind::List:
    case ValueKind::Set:
    case ValueKind::ColorMap:
        return byDefault.isList() && std::ranges::all_of(byDefault.getList(), [&](const PropertyTree& element)
                                                         { return HasForm(element, *schema.element); });
    default:
        return byDefault.isScalar();
    }
}

// Whether a caller's class takes its own default from a tree.
bool Takes(const RecordSchema& schema, std::size_t index, void* object, const Member& member)
{
    schema.readField(index, object, *member.byDefault, &RESET_MISSING);
    if (member.value->kind != ValueKind::Other)
    {
        return true;
    }
    PropertyTree again;
    schema.writeField(index, object, again, &WHOLE);
    return AreSame(again, *member.byDefault);
}

PropertyTree WholeOf(const HelperSettings& settings)
{
    PropertyTree tree;
    HelperSettings::Schema().write(&settings, tree.makeMap(), &WHOLE, 0);
    return tree;
}

// Whether elements can be compared by their texts.
bool IsFlat(const PropertyTree& element)
{
    return element.isScalar() || (element.isMap() && std::ranges::all_of(element.getMap(), [](const auto& entry)
                                                                         { return entry.second.isScalar(); }));
}

bool AreSameInAnyOrder(const PropertyTree::List& a, const PropertyTree::List& b)
{
    if (!std::ranges::all_of(a, &IsFlat) || !std::ranges::all_of(b, &IsFlat))
    {
        return false;
    }
    const auto sorted = [](const PropertyTree::List& list)
    {
        std::vector<std::string> texts;
        texts.reserve(list.size());
        std::ranges::transform(list, std::back_inserter(texts), &KeyOf);
        std::ranges::sort(texts);
        return texts;
    };
    return sorted(a) == sorted(b);
}

} // namespace

FormDefaults::FormDefaults(RecordInfos& infos) : m_infos(infos)
{
    m_bases.push_back({.implName = Proc::ImplNames::DEFAULT_NAME, .helperSettings = WholeOf(HelperSettings())});
}

const Members& FormDefaults::Of(const RecordSchema& schema)
{
    const auto [entry, isNew] = m_records.try_emplace(&schema);
    Members& members = entry->second;
    if (!isNew)
    {
        return members;
    }
    PropertyTree written;
    const std::vector<PropertyTree>* defaults = nullptr;
    const bool areKnown = Attempt(
        [&]
        {
            constexpr Proc::WriteFlags thin{.resetTargets = true, .omitDefaults = true};
            defaults = &m_infos.DefaultsOf(schema);
            schema.write(schema.defaults(), written.makeMap(), &thin, 0);
        });
    members.reserve(schema.fields.size());
    for (std::size_t place = 0; place != schema.fields.size(); ++place)
    {
        const std::size_t index = schema.sortedKeys[place].index;
        Member& member = members.emplace_back();
        member.key = schema.fields[index].key;
        member.value = schema.fields[index].value;
        if (areKnown)
        {
            member.byDefault = &(*defaults)[index];
            member.isOptional = HasForm(*member.byDefault, *member.value);
            member.isAlwaysWritten = written.contains(member.key);
        }
    }
    return members;
}

const Members* FormDefaults::Of(const EffectClass& effectClass)
{
    const auto [entry, isNew] = m_effects.try_emplace(&effectClass);
    std::optional<Members>& members = entry->second;
    if (isNew && IsOwn(effectClass))
    {
        members = MembersOf(effectClass, m_bases.front());
    }
    else if (isNew)
    {
        Attempt([&] { members = MembersOfCallers(effectClass); });
    }
    return members ? &*members : nullptr;
}

Members FormDefaults::MembersOf(const EffectClass& effectClass, const BaseDefaults& base)
{
    Members members = effectClass.getSchema() ? Of(*effectClass.getSchema()) : Members();
    members.push_back({StoredKeys::IMPL_NAME, &IMPL_NAME_VALUE, &base.implName, true, false});
    members.push_back({StoredKeys::HELPER_SETTINGS, &HELPER_SETTINGS_VALUE, &base.helperSettings, true, false});
    std::ranges::sort(members, {}, &Member::key);
    return members;
}

// A caller's class may set what every effect has, and its setters and codecs may not take what its getters and they give.
std::optional<Members> FormDefaults::MembersOfCallers(const EffectClass& effectClass)
{
    const std::shared_ptr<IEffectSettings> effect = effectClass.create();
    if (!effect)
    {
        return std::nullopt;
    }
    BaseDefaults& base = m_bases.emplace_back(m_bases.front());
    if (const auto* settings = dynamic_cast<const EffectSettings*>(effect.get()))
    {
        PropertyTree written;
        settings->EffectSettings::Serialize(written);
        if (written.contains(StoredKeys::IMPL_NAME))
        {
            base.implName = written[StoredKeys::IMPL_NAME];
        }
        base.helperSettings = WholeOf(settings->EffectSettings::GetHelperSettings());
    }
    Members members = MembersOf(effectClass, base);
    const RecordSchema& schema = *effectClass.getSchema();
    void* const object = effectClass.getStored(*effect);
    for (Member& member : members)
    {
        const auto index = Proc::FindField(schema, member.key);
        member.isOptional = member.isOptional && (!index || Attempt([&] { return Takes(schema, *index, object, member); }));
    }
    return members;
}

bool FormDefaults::IsDefault(const PropertyTree& value, const ValueSchema& schema, const PropertyTree& byDefault)
{
    switch (schema.kind)
    {
    case ValueKind::Record:
        return value.isMap() && byDefault.isMap() && IsDefaultRecord(value.getMap(), schema.record(), byDefault.getMap());
    case ValueKind::List:
        return value.isList() && byDefault.isList() && IsDefaultList(value.getList(), schema, byDefault.getList());
    case ValueKind::Set:
    case ValueKind::ColorMap:
        return value.isList() && byDefault.isList() && value.getList().size() == byDefault.getList().size() &&
               (IsDefaultList(value.getList(), schema, byDefault.getList()) ||
                AreSameInAnyOrder(value.getList(), byDefault.getList()));
    default:
        return AreSame(value, byDefault);
    }
}

bool FormDefaults::IsDefaultRecord(const PropertyTree::Map& map, const RecordSchema& schema, const PropertyTree::Map& byDefault)
{
    const Members& members = Of(schema);
    if (map.size() > members.size() || byDefault.size() != members.size())
    {
        return false;
    }
    auto given = map.begin();
    auto whole = byDefault.begin();
    for (const Member& member : members)
    {
        const bool isGiven = given != map.end() && given->first == member.key;
        if (whole->first != member.key || !(isGiven ? IsDefault(given->second, *member.value, whole->second)
                                                    : member.isOptional && AreSame(*member.byDefault, whole->second)))
        {
            return false;
        }
        if (isGiven)
        {
            ++given;
        }
        ++whole;
    }
    return given == map.end(); // else there are keys that are not known
}

bool FormDefaults::IsDefaultList(const PropertyTree::List& list, const ValueSchema& schema, const PropertyTree::List& byDefault)
{
    return std::ranges::equal(list, byDefault,
                              [&](const PropertyTree& element, const PropertyTree& other)
                              { return IsDefault(element, *schema.element, other); });
}

} // namespace Ombrel::Inspection
