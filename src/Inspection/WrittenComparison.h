#ifndef OMBREL_INSPECTION_WRITTEN_COMPARISON_H
#define OMBREL_INSPECTION_WRITTEN_COMPARISON_H

#include "Inspection/CheckContext.h"
#include "Inspection/Findings.h"
#include "Proc/Reflection/Schema.h"
#include "PropertyTree/PropertyTree.h"

#include <utility>
#include <vector>

namespace Ombrel::Inspection
{

/// Compares what stands in a tree with what is written after it was read, and finds what differs beyond what is told already.
/// Values with an error, and effects, are passed over.
class WrittenComparison
{
public:
    using Map = PropertyTree::Map;

    WrittenComparison(Findings& findings, CheckContext& context) : m_findings(findings), m_context(context) {}

    void CompareMembers(const Map& given, const Map& written, const Proc::RecordSchema& schema, const Place& place);

    /// A value is not written again. `byDefault` is its default.
    void Omitted(const PropertyTree& given, const PropertyTree& byDefault, const Proc::ValueSchema& schema, const Place& place);

    /// The elements of a simple list are written again, but for fields of theirs that have their defaults.
    void OmittedInElements(const PropertyTree& list, const Proc::ValueSchema& schema, const Place& place);

    /// What the value becomes when it is read, as far as its kind tells.
    const PropertyTree& ReadAs(const PropertyTree& given);

    /// The values that are written otherwise, with their findings.
    const std::vector<std::pair<Finding*, const PropertyTree*>>& Changed() const noexcept { return m_changed; }

private:
    void Compare(const PropertyTree& given, const PropertyTree& written, const Proc::ValueSchema& schema, const Place& place);
    void CompareLists(const PropertyTree& given, const PropertyTree& written, const Proc::ValueSchema& schema,
                      const Place& place);
    void CompareUnordered(const PropertyTree& given, const PropertyTree& written, const Proc::ValueSchema& schema,
                          const Place& place);
    void AddChanged(const PropertyTree& given, const PropertyTree& written, const Place& place);
    PropertyTree ElementRead(const PropertyTree& element);
    bool AreSameElements(const PropertyTree& a, const PropertyTree& b);

    Findings& m_findings;
    CheckContext& m_context;
    std::vector<std::pair<Finding*, const PropertyTree*>> m_changed;
};

} // namespace Ombrel::Inspection

#endif
