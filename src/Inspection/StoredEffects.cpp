#include "Inspection/StoredEffects.h"

#include "Inspection/Check.h"
#include "Inspection/EffectMerge.h"
#include "Inspection/RefusedEffects.h"
#include "Inspection/Values.h"
#include "Proc/EffectSettings/EffectSettings.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <string>
#include <unordered_map>
#include <utility>
#include <variant>

namespace Ombrel::Inspection
{
namespace
{

using PhotoCore::EffectSettings;

// The trees of the items.
PropertyTree::List TreesOf(PropertyTree effectOrList)
{
    if (effectOrList.isList())
    {
        return std::move(effectOrList.getList());
    }
    PropertyTree::List list;
    list.push_back(std::move(effectOrList));
    return list;
}

// Null for the root.
std::shared_ptr<const Path> PathOfItem(std::size_t index, bool isSingle)
{
    return isSingle ? nullptr : std::make_shared<const Path>(std::vector<PathStep>{index});
}

// The place in a list of the effect that a finding is about.
std::size_t ItemOf(const Finding& finding)
{
    const Path* first = &finding.path;
    while (first->Start())
    {
        first = first->Start().get();
    }
    return std::get<std::size_t>(first->OwnSteps().front());
}

// How many of the findings, which are in reading order, are about the item.
std::size_t CountAbout(std::span<const Finding> findings, std::size_t index, bool isSingle)
{
    const auto isOther = [&](const Finding& finding) { return !isSingle && ItemOf(finding) != index; };
    return static_cast<std::size_t>(std::ranges::find_if(findings, isOther) - findings.begin());
}

// Reads one item; what is refused in it, and the findings for that, are added.
class TolerantRead
{
public:
    TolerantRead(const PropertyTree& tree, std::shared_ptr<const Path> path, std::span<const Finding> about, EffectSet& kept,
                 std::vector<Finding>& findings)
        : m_tree(tree), m_path(std::move(path)), m_kept(kept), m_findings(findings)
    {
        AddRefused(tree, about, m_path ? 1 : 0, kept);
        m_isPartial =
            std::ranges::any_of(about, [](const Finding& finding) { return SeverityOf(finding.code) == Severity::Error; });
    }

    // Leaves both alone if the item is kept as a tree.
    void Run(StoredEffects::EffectPtr& effect, PropertyTree& written)
    {
        if (m_tree.isNull() || m_kept.contains(&m_tree) || Try(effect, written))
        {
            return;
        }
        // A class fails that a check does not see through.
        AddFailing(m_tree, m_path, m_kept, m_findings);
        m_isPartial = true;
        if (!m_kept.contains(&m_tree) && !Try(effect, written))
        {
            AddFailing(m_tree, Path(m_path, {}), m_reason, m_kept, m_findings);
        }
    }

private:
    bool Try(StoredEffects::EffectPtr& effect, PropertyTree& written)
    {
        StoredEffects::EffectPtr read;
        PropertyTree again;
        RecordInfos infos;
        m_reason =
            m_isPartial ? ReadAndWrite(WithoutEffects(m_tree, &m_kept, infos), read, again) : ReadAndWrite(m_tree, read, again);
        if (!m_reason.empty())
        {
            return false;
        }
        effect = std::move(read);
        written = std::move(again);
        return true;
    }

    const PropertyTree& m_tree;
    std::shared_ptr<const Path> m_path;
    EffectSet& m_kept;
    std::vector<Finding>& m_findings;
    bool m_isPartial = false;
    std::string m_reason;
};

} // namespace

StoredEffects::StoredEffects() noexcept = default;
StoredEffects::StoredEffects(StoredEffects&&) noexcept = default;
StoredEffects& StoredEffects::operator=(StoredEffects&&) noexcept = default;
StoredEffects::~StoredEffects() = default;

// Parts of trees stay where they are when the trees are moved, so that the effects that are kept can be told by their places.
void StoredEffects::Load(PropertyTree effectOrList)
{
    StoredEffects loaded;
    loaded.m_isSingle = !effectOrList.isList();
    std::vector<Finding> failures;
    loaded.m_findings = Check(effectOrList);
    std::span<const Finding> rest(loaded.m_findings);
    for (PropertyTree& tree : TreesOf(std::move(effectOrList)))
    {
        const std::size_t index = loaded.m_items.size();
        const std::size_t count = CountAbout(rest, index, loaded.m_isSingle);
        Item& item = loaded.m_items.emplace_back();
        item.loaded = std::move(tree);
        TolerantRead(item.loaded, PathOfItem(index, loaded.m_isSingle), rest.first(count), loaded.m_kept, failures)
            .Run(item.effect, item.written);
        rest = rest.subspan(count);
    }
    loaded.m_findings.insert(loaded.m_findings.end(), std::move_iterator(failures.begin()), std::move_iterator(failures.end()));
    *this = std::move(loaded);
}

void StoredEffects::LoadStrict(PropertyTree effectOrList)
{
    StoredEffects loaded;
    loaded.m_isSingle = !effectOrList.isList();
    loaded.m_findings = Check(effectOrList);
    for (PropertyTree& tree : TreesOf(std::move(effectOrList)))
    {
        Item& item = loaded.m_items.emplace_back();
        item.loaded = std::move(tree);
        EffectSettings::DeserializePtr(item.loaded, item.effect);
        EffectSettings::SerializePtr(item.written, item.effect);
    }
    *this = std::move(loaded);
}

const StoredEffects::EffectPtr& StoredEffects::Effect(std::size_t index) const
{
    return m_items.at(index).effect;
}

const PropertyTree& StoredEffects::Loaded(std::size_t index) const
{
    return m_items.at(index).loaded;
}

void StoredEffects::Insert(std::size_t index, EffectPtr effect)
{
    if (index > m_items.size())
    {
        throw std::out_of_range("no place for an effect");
    }
    Item item;
    item.effect = std::move(effect);
    m_items.insert(m_items.begin() + static_cast<std::ptrdiff_t>(index), std::move(item));
}

void StoredEffects::Replace(std::size_t index, EffectPtr effect)
{
    Item& item = m_items.at(index);
    if (!item.effect || !effect || item.effect->GetClassId() != effect->GetClassId())
    {
        item = Item();
    }
    item.effect = std::move(effect);
}

void StoredEffects::Remove(std::size_t index)
{
    static_cast<void>(m_items.at(index));
    m_items.erase(m_items.begin() + static_cast<std::ptrdiff_t>(index));
}

void StoredEffects::Move(std::size_t from, std::size_t to)
{
    static_cast<void>(m_items.at(from));
    static_cast<void>(m_items.at(to));
    const auto at = [this](std::size_t index) { return m_items.begin() + static_cast<std::ptrdiff_t>(index); };
    if (from < to)
    {
        std::rotate(at(from), at(from + 1), at(to + 1));
    }
    else
    {
        std::rotate(at(to), at(from), at(from + 1));
    }
}

std::vector<StoredEffects::EffectPtr> StoredEffects::Effects() const
{
    std::vector<EffectPtr> effects;
    for (const Item& item : m_items)
    {
        if (item.effect)
        {
            effects.push_back(item.effect);
        }
    }
    return effects;
}

void StoredEffects::SetEffects(std::span<const EffectPtr> effects)
{
    std::unordered_map<const PhotoCore::IEffectSettings*, std::size_t> places; // in the new list
    for (std::size_t index = 0; index != effects.size(); ++index)
    {
        if (effects[index])
        {
            places.try_emplace(effects[index].get(), index);
        }
    }
    // By index in the old list: the item of each effect, and the items without one, which follow it or stand before all.
    constexpr std::size_t none = static_cast<std::size_t>(-1);
    std::vector<std::size_t> known(effects.size(), none);
    std::vector<std::vector<std::size_t>> others(effects.size() + 1);
    std::size_t last = 0;
    std::size_t size = effects.size();
    for (std::size_t index = 0; index != m_items.size(); ++index)
    {
        const auto place = places.find(m_items[index].effect.get());
        if (!m_items[index].effect)
        {
            others[last].push_back(index);
            ++size;
        }
        else if (place != places.end())
        {
            last = place->second + 1;
            known[place->second] = index;
            places.erase(place);
        }
    }
    std::vector<Item> items;
    items.reserve(size);
    const auto moveOthers = [&](std::size_t group)
    {
        for (const std::size_t index : others[group])
        {
            items.push_back(std::move(m_items[index]));
        }
    };
    moveOthers(0);
    for (std::size_t index = 0; index != effects.size(); ++index)
    {
        items.push_back(known[index] == none ? Item() : std::move(m_items[known[index]]));
        items.back().effect = effects[index];
        moveOthers(index + 1);
    }
    m_items = std::move(items);
}

PropertyTree StoredEffects::SaveItem(const Item& item, const EffectSet& kept)
{
    if (!item.effect)
    {
        return item.loaded;
    }
    PropertyTree now;
    EffectSettings::SerializePtr(now, item.effect);
    if (item.written.isNull())
    {
        return now;
    }
    return AreSame(item.written, now) ? item.loaded : Settled(EffectMerge(kept).Merged(item.loaded, item.written, now), now);
}

// Where values depend on each other, one that was not changed may read otherwise beside one that was. If what is written now
// reads as it is, such a value is replaced too.
PropertyTree StoredEffects::Settled(PropertyTree merged, const PropertyTree& now)
{
    StoredEffects again;
    again.Load(std::move(merged));
    Item& read = again.m_items.front();
    if (!read.effect || AreSame(read.written, now))
    {
        return std::move(read.loaded);
    }
    StoredEffects alone;
    alone.Load(now);
    const bool isReadAsItIs = alone.m_kept.empty() && AreSame(alone.m_items.front().written, now);
    return isReadAsItIs ? EffectMerge(again.m_kept).Merged(read.loaded, read.written, now) : std::move(read.loaded);
}

PropertyTree StoredEffects::Save(std::size_t index) const
{
    return SaveItem(m_items.at(index), m_kept);
}

PropertyTree StoredEffects::Save() const
{
    if (m_isSingle && m_items.size() == 1)
    {
        return SaveItem(m_items.front(), m_kept);
    }
    PropertyTree tree;
    PropertyTree::List& list = tree.makeList(m_items.size());
    for (const Item& item : m_items)
    {
        list.push_back(SaveItem(item, m_kept));
    }
    return tree;
}

} // namespace Ombrel::Inspection
