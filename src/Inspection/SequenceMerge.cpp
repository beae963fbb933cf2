#include "Inspection/EffectMerge.h"
#include "Inspection/ListAlignment.h"
#include "Inspection/ValueCheck.h"
#include "Inspection/Values.h"
#include "Inspection/WrittenComparison.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <set>
#include <span>

// Lists, sets and maps of colours.
namespace Ombrel::Inspection
{
namespace
{

using Proc::ValueKind;
using Proc::ValueSchema;
using ElementGroup = std::vector<const PropertyTree*>;

std::span<const PropertyTree> SpanOf(const PropertyTree& list)
{
    return list.isList() ? std::span<const PropertyTree>(list.getList()) : std::span<const PropertyTree>();
}

// A list as it was loaded: the elements that were read, and behind each of them those that were not. The first of these groups
// stands before all elements.
struct LoadedList
{
    LoadedList(const PropertyTree& list, const EffectSet& kept) : groups(1)
    {
        for (const PropertyTree& element : list.getList())
        {
            if (kept.contains(&element))
            {
                groups.back().push_back(&element);
            }
            else
            {
                elements.push_back(&element);
                groups.emplace_back();
            }
        }
    }

    // What followed an element that is gone follows the one before it.
    void Regroup(const std::vector<bool>& isThere)
    {
        std::size_t last = 0;
        for (std::size_t index = 0; index != elements.size(); ++index)
        {
            ElementGroup& group = groups[index + 1];
            if (index < isThere.size() && isThere[index])
            {
                last = index + 1;
            }
            else
            {
                groups[last].insert(groups[last].end(), group.begin(), group.end());
                group.clear();
            }
        }
    }

    ElementGroup elements;
    std::vector<ElementGroup> groups;
};

} // namespace

void EffectMerge::MergeLists(const Value& value, PropertyTree& target)
{
    const std::span<const PropertyTree> before = SpanOf(*value.before);
    const std::span<const PropertyTree> now = SpanOf(*value.now);
    LoadedList loaded(*value.loaded, m_kept);
    if (loaded.elements.size() != before.size() && AreSame(*value.before, *value.now))
    {
        target = *value.loaded; // a caller's class that makes other elements of them
        return;
    }
    const ValueSchema* schema = value.schema ? value.schema->element : nullptr;
    const ListAlignment alignment(before, now, schema && schema->kind == ValueKind::Effect, m_prints);
    std::vector<bool> isThere(before.size());
    for (const std::size_t origin : alignment.Origins())
    {
        if (origin != ListAlignment::NONE)
        {
            isThere[origin] = true;
        }
    }
    loaded.Regroup(isThere);

    std::size_t size = now.size();
    for (const ElementGroup& group : loaded.groups)
    {
        size += group.size();
    }
    PropertyTree::List& list = target.makeList(size); // whose elements stay where they are
    const auto addKept = [&list](const ElementGroup& group)
    {
        for (const PropertyTree* element : group)
        {
            list.push_back(*element);
        }
    };
    addKept(loaded.groups.front());
    for (std::size_t index = 0; index != now.size(); ++index)
    {
        const std::size_t origin = alignment.Origins()[index];
        if (origin < loaded.elements.size())
        {
            PutElement({.loaded = loaded.elements[origin], .before = &before[origin], .now = &now[index], .schema = schema},
                       list.emplace_back());
            addKept(loaded.groups[origin + 1]);
        }
        else
        {
            list.push_back(now[index]);
        }
    }
}

// An element, as it is read, as a text.
std::string EffectMerge::KeyOfElement(const PropertyTree& element, const ValueSchema& schema)
{
    static constexpr Place nowhere{};
    m_context.searches = 0;
    Findings findings(m_context);
    ValueCheck(findings, m_context).Check(element, schema, nowhere);
    return KeyOf(WrittenComparison(findings, m_context).ReadAs(element));
}

void EffectMerge::MergeSets(const Value& value, PropertyTree& target)
{
    const ValueSchema& schema = *value.schema->element;
    const auto keysOf = [](const PropertyTree& set)
    {
        std::set<std::string> keys;
        for (const PropertyTree& element : SpanOf(set))
        {
            keys.insert(KeyOf(element));
        }
        return keys;
    };
    const std::set<std::string> before = keysOf(*value.before);
    const std::set<std::string> now = keysOf(*value.now);
    PropertyTree::List& list = target.makeList();
    for (const PropertyTree& element : value.loaded->getList())
    {
        const std::string key = KeyOfElement(element, schema);
        if (!before.contains(key) || now.contains(key))
        {
            list.push_back(element);
        }
    }
    for (const PropertyTree& element : SpanOf(*value.now))
    {
        if (!before.contains(KeyOf(element)))
        {
            list.push_back(element);
        }
    }
}

void EffectMerge::MergeColorMaps(const Value& value, PropertyTree& target)
{
    const ValueSchema& number = *value.schema->element->record().fields[0].value;
    using ByNumber = std::map<std::string, const PropertyTree*>;
    const auto entriesOf = [](const PropertyTree& colors)
    {
        ByNumber entries;
        for (const PropertyTree& element : SpanOf(colors))
        {
            entries[KeyOf(element["key"])] = &element;
        }
        return entries;
    };
    const ByNumber before = entriesOf(*value.before);
    const ByNumber now = entriesOf(*value.now);
    const auto isChanged = [&](const std::string& key)
    {
        const auto was = before.find(key);
        const auto is = now.find(key);
        return was == before.end() || is == now.end() || !AreSame((*was->second)["value"], (*is->second)["value"]);
    };
    std::set<std::string> stored;
    PropertyTree::List& list = target.makeList();
    for (const PropertyTree& element : value.loaded->getList())
    {
        const std::string key = KeyOfElement(element["key"], number);
        const auto is = now.find(key);
        if (is == now.end())
        {
            continue;
        }
        list.push_back(element);
        if (isChanged(key))
        {
            list.back()["value"] = (*is->second)["value"];
        }
        stored.insert(key);
    }
    for (const auto& [key, element] : now)
    {
        if (isChanged(key) && !stored.contains(key))
        {
            list.push_back(*element);
        }
    }
}

} // namespace Ombrel::Inspection
