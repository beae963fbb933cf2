#ifndef OMBREL_FUZZ_RANDOM_CHANGES_H
#define OMBREL_FUZZ_RANDOM_CHANGES_H

#include "Mutation.h"

#include "PropertyTree/PropertyTree.h"

#include <algorithm>
#include <cstddef>
#include <utility>

// Pairs of random trees, the second of which is the first with changes.
namespace Fuzz
{

using Ombrel::PropertyTree;

// What a newer version or another program may have stored: other classes, other keys.
inline void AddUnknown(PropertyTree& tree, Mutation& mutation)
{
    if (tree.isList())
    {
        for (PropertyTree& element : tree.getList())
        {
            AddUnknown(element, mutation);
        }
    }
    else if (tree.isMap())
    {
        for (auto& [key, child] : tree.getMap())
        {
            AddUnknown(child, mutation);
        }
        if (tree.contains("name") && mutation.IsOneIn(12))
        {
            tree["name"] = "EFFECT_OF_TOMORROW";
        }
        if (mutation.IsOneIn(8))
        {
            tree["later"]["x"] = static_cast<int>(mutation.Below(1000));
        }
    }
}

// Puts effects into one that holds effects.
inline PropertyTree Around(PropertyTree::List inner, Mutation& mutation)
{
    PropertyTree outer;
    PropertyTree list;
    list.makeList() = std::move(inner);
    switch (mutation.Below(4))
    {
    case 0:
        outer["name"] = "effectSettingsTileStub";
        outer[mutation.IsOneIn(2) ? "pre" : "post"] = std::move(list);
        break;
    case 1:
        outer["name"] = "effectSettingsTileStub";
        for (PropertyTree& effect : list.getList())
        {
            PropertyTree cell;
            cell.append(std::move(effect));
            outer["effectRows"].append({});
            outer["effectRows"].getList().back()["cols"].append(std::move(cell));
        }
        break;
    case 2:
        outer["name"] = "EffectsPackageOneInputWithBrush";
        outer[mutation.IsOneIn(2) ? "foregroundEffects" : "backgroundEffects"] = std::move(list);
        break;
    default:
        outer["name"] = "SettingsEffectFacePackage";
        for (PropertyTree& effect : list.getList())
        {
            outer["facesEffects"].append({});
            outer["facesEffects"].getList().back()["effect"] = std::move(effect);
        }
    }
    return outer;
}

// Effects that were seen, in effects, up to five levels deep.
inline PropertyTree Nested(const PropertyTree::List& seen, Mutation& mutation)
{
    PropertyTree tree = seen[mutation.Below(seen.size())];
    for (std::size_t level = mutation.Below(6); level != 0; --level)
    {
        PropertyTree::List inner{std::move(tree)};
        for (std::size_t count = mutation.Below(4); count != 0; --count)
        {
            inner.push_back(seen[mutation.Below(seen.size())]);
        }
        std::rotate(inner.begin(), inner.begin() + static_cast<std::ptrdiff_t>(mutation.Below(inner.size())), inner.end());
        tree = Around(std::move(inner), mutation);
    }
    return tree;
}

// Changes a few of the effects at any depth.
inline void ChangeSome(PropertyTree& tree, Mutation& mutation)
{
    if (tree.isList())
    {
        for (PropertyTree& element : tree.getList())
        {
            ChangeSome(element, mutation);
        }
    }
    else if (tree.isMap())
    {
        for (auto& [key, child] : tree.getMap())
        {
            ChangeSome(child, mutation);
        }
        if (tree.contains("name") && mutation.IsOneIn(4))
        {
            mutation.ChangeInput(tree);
        }
    }
}

// Takes elements out of lists and gives them other places.
inline void ChangeLists(PropertyTree& tree, Mutation& mutation)
{
    if (tree.isList())
    {
        PropertyTree::List& list = tree.getList();
        for (PropertyTree& element : list)
        {
            ChangeLists(element, mutation);
        }
        if (!list.empty() && mutation.IsOneIn(4))
        {
            list.erase(list.begin() + static_cast<std::ptrdiff_t>(mutation.Below(list.size())));
        }
        if (!list.empty() && mutation.IsOneIn(4))
        {
            std::rotate(list.begin(), list.begin() + static_cast<std::ptrdiff_t>(mutation.Below(list.size())), list.end());
        }
    }
    else if (tree.isMap())
    {
        for (auto& [key, child] : tree.getMap())
        {
            ChangeLists(child, mutation);
        }
    }
}

/// Compares two trees, some with effects in effects: the first is `tree`, or holds effects that were seen before.
class RandomPairs
{
public:
    template <class Comparison> void Compare(const PropertyTree& tree, Mutation& mutation, const Comparison& compare)
    {
        m_seen.resize(std::min<std::size_t>(m_seen.size() + 1, 100));
        m_seen[mutation.Below(m_seen.size())] = tree.isList() ? tree.getList().back() : tree;
        PropertyTree given = mutation.IsOneIn(2) ? tree : Nested(m_seen, mutation);
        AddUnknown(given, mutation);
        PropertyTree other = given;
        ChangeSome(other, mutation);
        if (mutation.IsOneIn(2))
        {
            ChangeLists(other, mutation);
        }
        compare(given, other);
    }

private:
    PropertyTree::List m_seen;
};

} // namespace Fuzz

#endif
