#ifndef OMBREL_INSPECTION_TREE_EDITOR_H
#define OMBREL_INSPECTION_TREE_EDITOR_H

#include "Inspection/ElementOrder.h"
#include "Inspection/TreeSteps.h"

#include <cstddef>
#include <deque>
#include <optional>
#include <unordered_map>

namespace Ombrel::Inspection
{

/// Many changes of one tree, one after the other. A long list is opened when its first element comes or goes: its elements are
/// kept here, so that the next ones come and go in no time, until the list is closed. Its place in the tree holds one null, and
/// is known by where that stands in memory, which is so wherever the list moves to.
///
/// What the functions are given is the tree that is changed, or a part of it.
class TreeEditor
{
public:
    PropertyTree* ChildAt(PropertyTree* parent, const PathStep& step);
    PropertyTree* Find(PropertyTree& tree, Steps steps);

    std::size_t SizeOf(const PropertyTree& list) const;

    /// @param place a place of the list
    void Insert(PropertyTree& list, std::size_t place, PropertyTree element);
    PropertyTree Remove(PropertyTree& list, std::size_t place);
    void Move(PropertyTree& list, std::size_t from, std::size_t to);

    /// Gives a value another one.
    void Assign(PropertyTree& value, PropertyTree other);

    /// Gives the value at the steps another one, or takes out its key. False if there is no place for it, since what is around
    /// it is missing.
    bool Put(PropertyTree& tree, Steps steps, const std::optional<PropertyTree>& value);

    /// Makes a change of the value, or of the list around the element, at the steps. The same as above if there is no place for
    /// it.
    /// @param element what is inserted
    bool Execute(PropertyTree& tree, Steps steps, const Change& change, const std::optional<PropertyTree>& element);

    /// The value without open lists.
    /// @param copy holds it if it has any
    const PropertyTree& Plain(const PropertyTree& value, PropertyTree& copy) const;

    /// Puts the elements of all lists in the value back to their places. No value in it stays where it is in memory.
    void Close(PropertyTree& value);

private:
    struct OpenList
    {
        std::deque<PropertyTree> elements; // which stay where they are
        ElementOrder order;
    };

    OpenList* OpenOf(const PropertyTree& list);
    const OpenList* OpenOf(const PropertyTree& list) const;
    OpenList* Open(PropertyTree& list);

    std::unordered_map<const PropertyTree*, OpenList> m_open;
};

} // namespace Ombrel::Inspection

#endif
