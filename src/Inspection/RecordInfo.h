#ifndef OMBREL_INSPECTION_RECORD_INFO_H
#define OMBREL_INSPECTION_RECORD_INFO_H

#include "Proc/Reflection/Schema.h"
#include "PropertyTree/PropertyTree.h"

#include <array>
#include <cstddef>
#include <span>
#include <unordered_map>
#include <vector>

namespace Ombrel::Inspection
{

/// What is worked out once of each record type.
struct RecordInfo
{
    std::vector<bool> isPlain;          // by field: the kind of the value says all that reading and writing does
    std::vector<bool> isSimpleList;     // by field: so do those of its elements, if the list is not empty
    std::vector<bool> holdsEffects;     // by field
    bool hasSetters = false;            // whether a field is more than a member
    std::vector<PropertyTree> defaults; // by field, once they have been asked for
};

class RecordInfos
{
public:
    const RecordInfo& Of(const Proc::RecordSchema& schema);

    /// The fields as they are written by default.
    /// @throws what a getter of a caller's record throws
    const std::vector<PropertyTree>& DefaultsOf(const Proc::RecordSchema& schema);

    bool HoldsEffects(const Proc::ValueSchema& schema);

private:
    RecordInfo& InfoOf(const Proc::RecordSchema& schema);
    bool IsSimpleList(const Proc::ValueSchema& schema);

    std::unordered_map<const Proc::RecordSchema*, RecordInfo> m_infos; // which stay where they are
};

/// The children of the fields of a record in a map, or null, by field.
class Children
{
public:
    Children(const Proc::RecordSchema& schema, const PropertyTree::Map& map);

    Children(const Children&) = delete;
    Children& operator=(const Children&) = delete;

    const PropertyTree* operator[](std::size_t field) const noexcept { return m_children[field]; }

    /// How many there are.
    std::size_t Count() const noexcept;

private:
    std::array<const PropertyTree*, 32> m_few;
    std::vector<const PropertyTree*> m_many;
    std::span<const PropertyTree*> m_children;
};

} // namespace Ombrel::Inspection

#endif
