#ifndef OMBREL_INSPECTION_VALUE_CHECK_H
#define OMBREL_INSPECTION_VALUE_CHECK_H

#include "Inspection/CheckContext.h"
#include "Inspection/Findings.h"
#include "Proc/Reflection/Schema.h"
#include "PropertyTree/PropertyTree.h"

#include <cstddef>
#include <string_view>

namespace Ombrel::Inspection
{

/// What the kinds of values alone say of a stored value: what no read takes, and what a read takes for another value. What
/// setters make of it is not seen here.
class ValueCheck
{
public:
    ValueCheck(Findings& findings, CheckContext& context) : m_findings(findings), m_context(context) {}

    void Check(const PropertyTree& value, const Proc::ValueSchema& schema, const Place& place);

    /// The fields of a record, and the keys of its map that are no fields.
    void CheckRecord(const PropertyTree::Map& map, const Proc::RecordSchema& schema, const Place& place);

    static bool IsField(const Proc::RecordSchema* schema, std::string_view key);

    void WrongKind(const PropertyTree& value, const Place& place, std::string_view expected);

    /// What stands where a list is read, and is none.
    void AddIgnored(const PropertyTree& value, const Proc::ValueSchema& schema, const Place& place);

    void AddUnknownKey(std::string_view key, const PropertyTree& value, const Proc::RecordSchema* schema, const Place& place);

private:
    void CheckInteger(const PropertyTree& value, const Proc::ValueSchema& schema, const Place& place);
    void CheckFloat(const PropertyTree& value, const Proc::ValueSchema& schema, const Place& place);
    void CheckEnum(const PropertyTree& value, const Proc::ValueSchema& schema, const Place& place);
    void CheckColor(const PropertyTree& value, const Place& place);
    void CheckSequence(const PropertyTree& value, const Proc::ValueSchema& schema, const Place& place);
    void CheckColorElement(const PropertyTree& element, const Proc::ValueSchema& schema, const Place& place);
    bool HasErrorInside(const PropertyTree& element);
    static bool IsAscending(const PropertyTree::List& list, const Proc::ValueSchema& schema);
    void FindDuplicates(const PropertyTree::List& list, const Proc::ValueSchema& schema, const Place& place);
    void AddEffect(const PropertyTree& value, const Place& place);
    const Place* Kept(const Place& place);

    Findings& m_findings;
    CheckContext& m_context;
};

} // namespace Ombrel::Inspection

#endif
