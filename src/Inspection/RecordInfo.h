#ifndef OMBREL_INSPECTION_RECORD_INFO_H
#define OMBREL_INSPECTION_RECORD_INFO_H

#include "Proc/Reflection/Schema.h"
#include "PropertyTree/PropertyTree.h"

#include <unordered_map>

namespace Ombrel::Inspection
{

/// What is worked out once of each record type.
struct RecordInfo
{
    PropertyTree defaults; // every field that holds no effects, as it is written by default
};

class RecordInfos
{
public:
    /// @throws what a getter of a caller's record throws
    const RecordInfo& Of(const Proc::RecordSchema& schema);

private:
    std::unordered_map<const Proc::RecordSchema*, RecordInfo> m_infos; // which stay where they are
};

/// Whether the kinds of values say all that reading and writing does: a number, text, name or colour that is no more than a
/// member.
bool IsPlain(const Proc::FieldSchema& field) noexcept;

/// Whether effects stand in such a value.
bool HoldsEffects(const Proc::ValueSchema& schema) noexcept;

} // namespace Ombrel::Inspection

#endif
