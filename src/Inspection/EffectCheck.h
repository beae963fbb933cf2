#ifndef OMBREL_INSPECTION_EFFECT_CHECK_H
#define OMBREL_INSPECTION_EFFECT_CHECK_H

#include "Inspection/CheckContext.h"
#include "Inspection/Findings.h"
#include "Inspection/ValueCheck.h"
#include "Inspection/WrittenComparison.h"
#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "PropertyTree/PropertyTree.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace Ombrel::Inspection
{

/// Checks one effect of a tree, without the effects in it, which it only names.
class EffectCheck
{
public:
    EffectCheck(const EffectNode& node, CheckContext& context)
        : m_node(node), m_context(context), m_findings(context), m_values(m_findings, context),
          m_comparison(m_findings, context)
    {
    }

    /// What was found, with the effects within at their places.
    std::vector<std::unique_ptr<Findings::Item>>& Run();

private:
    using Map = PropertyTree::Map;

    static constexpr Proc::ReadFlags READ{.resetMissing = true};
    static constexpr Proc::WriteFlags WRITE{.resetTargets = false, .omitDefaults = true};

    bool FindClass(const Map& map);
    void CheckEffect(const Map& map);
    bool IsSameBesideBaseMembers(const Map& map, const Map& written) const;
    bool MustTry(const Children& children);
    bool IsSimpleList(const PropertyTree& value, std::size_t index);
    void ReadOwn(const Children& children);
    bool Make();
    template <class Action> bool Try(FindingCode code, const Place& place, const PropertyTree* at, Action action);
    void CheckBaseMembers(const Map& map);
    void EndBaseMember(const PropertyTree& value, bool isDefault, bool isLost, const Place& place);
    void CheckFields(const Children& children, bool isOwn);
    void ReadField(std::size_t index, const PropertyTree& value, bool isWhole);
    void CheckRows(const Map& map);

    void CheckKeys(const Map& map, std::size_t known);
    void CompareWithWritten(const Map& map, const Children& children);
    void FindMends(const Map& map);

    const EffectNode& m_node;
    CheckContext& m_context;
    Findings m_findings;
    ValueCheck m_values;
    WrittenComparison m_comparison;
    const PhotoCore::EffectClass* m_class = nullptr;
    const Proc::RecordSchema* m_schema = nullptr; // of the class; null if it has no keys of its own

    const RecordInfo* m_info = nullptr; // of the schema

    // Where only reading and writing tell what they do: an effect that is read, without the effects in it.
    std::shared_ptr<PhotoCore::IEffectSettings> m_effect;
    void* m_object = nullptr; // that the schema describes

    std::size_t m_baseMembers = 0; // how many keys of its map belong to what every effect has
    bool m_isAgain = false;        // a second look, at what would be mended
};

} // namespace Ombrel::Inspection

#endif
