#include "Inspection/Forms.h"

#include "Inspection/Attempt.h"
#include "Inspection/CheckContext.h"
#include "Inspection/EffectCheck.h"
#include "Inspection/FormDefaults.h"
#include "Inspection/KnownClass.h"
#include "Inspection/Values.h"
#include "Proc/EffectSettings/EffectSettings.h"
#include "Proc/EffectSettings/SettingsEffectFacePackage.h"
#include "Proc/EffectSettings/TileSettings.h"
#include "Proc/Settings/StoredKeys.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace Ombrel::Inspection
{
namespace
{

using PhotoCore::EffectClass;
using PhotoCore::EffectSettings;
using PhotoCore::IEffectSettings;
using Proc::ValueKind;
using Proc::ValueSchema;

namespace StoredKeys = Proc::StoredKeys;

enum class Form
{
    Thin,
    Frozen,
};

// Brings effects into a form, in place. Effects in effects wait on a stack, so that their nesting costs no stack of the thread.
// Each is reached when its place in the tree is final.
class FormWalk
{
public:
    explicit FormWalk(Form form) : m_form(form), m_defaults(m_context.infos) {}

    void Run(PropertyTree& effectOrList);

private:
    using Map = PropertyTree::Map;
    using Keys = std::vector<std::string>;

    struct Effect
    {
        PropertyTree* tree;
        std::size_t depth;     // in how many effects it stands, itself included
        bool isCopied = false; // by a face package, which clones what it reads
    };

    void VisitEffect(const Effect& effect);
    bool FindRefused(const Effect& effect);
    bool LosesHelperSettings(const Effect& effect, const Members& members);
    void VisitMap(PropertyTree& tree, const Members& members, const Keys& kept);
    void ThinMap(Map& map, const Members& members, const Keys& kept);
    void FreezeMap(PropertyTree& tree, const Members& members, const Keys& kept);
    void FreezeMember(PropertyTree& value, const Member& member);
    void VisitValue(PropertyTree& value, const ValueSchema& schema);

    const Form m_form;
    CheckContext m_context;
    FormDefaults m_defaults;
    std::vector<Effect> m_pending;
    Effect m_inner{}; // what the effects have in common that stand in the one that is visited
    Keys m_kept;      // of the effect that is visited, what stays as it stands
    const Keys m_none;
};

bool IsKept(const std::vector<std::string>& keys, std::string_view key)
{
    return !keys.empty() && std::ranges::find(keys, key) != keys.end();
}

void FormWalk::Run(PropertyTree& effectOrList)
{
    if (effectOrList.isList())
    {
        for (PropertyTree& effect : effectOrList.getList())
        {
            m_pending.push_back({.tree = &effect, .depth = 1});
        }
    }
    else
    {
        m_pending.push_back({.tree = &effectOrList, .depth = 1});
    }
    while (!m_pending.empty())
    {
        const Effect effect = m_pending.back();
        m_pending.pop_back();
        VisitEffect(effect);
    }
}

void FormWalk::VisitEffect(const Effect& effect)
{
    const EffectClass* const effectClass = effect.depth <= DEEPEST ? KnownClassOf(*effect.tree) : nullptr;
    m_kept.clear();
    if (!effectClass || (!IsOwn(*effectClass) && !FindRefused(effect)))
    {
        return;
    }
    const Members* const members = m_defaults.Of(*effectClass);
    if (!members)
    {
        return;
    }
    const Proc::RecordSchema* const schema = effectClass->getSchema();
    const bool isTile = schema == &PhotoCore::TileSettings::Schema();
    if (isTile && effect.isCopied && LosesHelperSettings(effect, *members))
    {
        m_kept.emplace_back(StoredKeys::HELPER_SETTINGS);
    }
    const bool isFacePackage = schema == &PhotoCore::SettingsEffectFacePackage::Schema();
    m_inner = {.tree = nullptr, .depth = effect.depth + 1, .isCopied = isFacePackage || (isTile && effect.isCopied)};
    VisitMap(*effect.tree, *members, m_kept);
}

// What the code of a caller's class refuses. False if it refuses the effect as a whole.
bool FormWalk::FindRefused(const Effect& effect)
{
    static constexpr Place ROOT{};
    const EffectNode node{.tree = effect.tree, .place = &ROOT, .depth = effect.depth, .isCopied = effect.isCopied};
    EffectCheck check(node, m_context);
    for (const auto& item : check.Run())
    {
        const Finding* const finding = std::get_if<Finding>(item.get());
        if (finding && finding->code == FindingCode::Refused)
        {
            if (finding->path.OwnSteps().empty())
            {
                return false;
            }
            m_kept.push_back(std::get<std::string>(finding->path.OwnSteps().front()));
        }
    }
    return true;
}

// A tile that a face package copies loses them, unless they are as by default.
bool FormWalk::LosesHelperSettings(const Effect& effect, const Members& members)
{
    const Map& map = effect.tree->getMap();
    const auto found = map.find(StoredKeys::HELPER_SETTINGS);
    const auto member = std::ranges::find(members, StoredKeys::HELPER_SETTINGS, &Member::key);
    return found != map.end() && !m_defaults.IsDefault(found->second, *member->value, *member->byDefault);
}

void FormWalk::VisitMap(PropertyTree& tree, const Members& members, const Keys& kept)
{
    if (m_form == Form::Thin)
    {
        ThinMap(tree.getMap(), members, kept);
    }
    else
    {
        FreezeMap(tree, members, kept);
    }
}

void FormWalk::ThinMap(Map& map, const Members& members, const Keys& kept)
{
    auto entry = map.begin();
    for (const Member& member : members)
    {
        while (entry != map.end() && entry->first < member.key)
        {
            ++entry; // it is not known
        }
        const bool isThere = entry != map.end() && entry->first == member.key;
        if (!isThere && member.isAlwaysWritten && member.isOptional)
        {
            PropertyTree& child = map[member.key];
            child = *member.byDefault;
            VisitValue(child, *member.value);
        }
        else if (isThere && member.isOptional && !member.isAlwaysWritten && !IsKept(kept, member.key) &&
                 m_defaults.IsDefault(entry->second, *member.value, *member.byDefault))
        {
            entry = map.erase(entry);
        }
        else if (isThere)
        {
            if (!IsKept(kept, member.key))
            {
                VisitValue(entry->second, *member.value);
            }
            ++entry;
        }
    }
}

// How many keys a map lacks that can be put in.
std::size_t CountMissing(const PropertyTree::Map& map, const Members& members)
{
    std::size_t count = 0;
    auto entry = map.begin();
    for (const Member& member : members)
    {
        while (entry != map.end() && entry->first < member.key)
        {
            ++entry;
        }
        count += member.isOptional && (entry == map.end() || entry->first != member.key) ? 1U : 0U;
    }
    return count;
}

// A map that lacks keys is made anew, in their order.
void FormWalk::FreezeMap(PropertyTree& tree, const Members& members, const Keys& kept)
{
    Map& map = tree.getMap();
    const std::size_t missing = CountMissing(map, members);
    PropertyTree whole;
    Map& target = whole.makeMap(missing == 0 ? 0 : map.size() + missing);
    auto entry = map.begin();
    const auto take = [&]() -> PropertyTree&
    {
        PropertyTree& given = entry->second;
        const std::string& key = entry->first;
        ++entry;
        return missing == 0 ? given : target[key] = std::move(given);
    };
    for (const Member& member : members)
    {
        while (entry != map.end() && entry->first < member.key)
        {
            take(); // it is not known
        }
        if (entry != map.end() && entry->first == member.key)
        {
            if (PropertyTree& child = take(); !IsKept(kept, member.key))
            {
                FreezeMember(child, member);
            }
        }
        else if (member.isOptional)
        {
            target[member.key] = *member.byDefault;
        }
    }
    while (entry != map.end())
    {
        take();
    }
    if (missing != 0)
    {
        tree = std::move(whole);
    }
}

void FormWalk::FreezeMember(PropertyTree& value, const Member& member)
{
    if (value.isScalar())
    {
        return;
    }
    if (member.isOptional && m_defaults.IsDefault(value, *member.value, *member.byDefault))
    {
        value = *member.byDefault;
        return;
    }
    VisitValue(value, *member.value);
}

void FormWalk::VisitValue(PropertyTree& value, const ValueSchema& schema)
{
    switch (schema.kind)
    {
    case ValueKind::Record:
        if (value.isMap())
        {
            VisitMap(value, m_defaults.Of(schema.record()), m_none);
        }
        return;
    case ValueKind::List:
    case ValueKind::Set:
        if (value.isList() && schema.element->kind > ValueKind::Color)
        {
            for (PropertyTree& element : value.getList())
            {
                VisitValue(element, *schema.element);
            }
        }
        return;
    case ValueKind::Effect:
        if (value.isMap())
        {
            m_pending.push_back({.tree = &value, .depth = m_inner.depth, .isCopied = m_inner.isCopied});
        }
        return;
    default:
        return;
    }
}

// Spares a list of effects that are not known a failure for each.
bool CanBeMade(const PropertyTree& effect)
{
    if (!effect.isMap())
    {
        return false;
    }
    const auto name = effect.getMap().find(StoredKeys::NAME);
    return name != effect.getMap().end() && IsText(name->second) &&
           PhotoCore::IsRegistered(name->second.getScalar().toString());
}

void NormaliseEffect(PropertyTree& tree)
{
    if (!CanBeMade(tree))
    {
        return;
    }
    Attempt(
        [&tree]
        {
            std::shared_ptr<IEffectSettings> effect;
            EffectSettings::DeserializePtr(tree, effect);
            PropertyTree written;
            EffectSettings::SerializePtr(written, effect);
            tree = std::move(written);
        });
}

} // namespace

PropertyTree Thin(PropertyTree effectOrList)
{
    FormWalk(Form::Thin).Run(effectOrList);
    return effectOrList;
}

PropertyTree Freeze(PropertyTree effectOrList)
{
    FormWalk(Form::Frozen).Run(effectOrList);
    return effectOrList;
}

PropertyTree Normalise(PropertyTree effectOrList)
{
    if (!effectOrList.isList())
    {
        NormaliseEffect(effectOrList);
        return effectOrList;
    }
    for (PropertyTree& effect : effectOrList.getList())
    {
        NormaliseEffect(effect);
    }
    return effectOrList;
}

} // namespace Ombrel::Inspection
