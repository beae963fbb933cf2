#ifndef OMBREL_INSPECTION_RELEASE_CHECK_H
#define OMBREL_INSPECTION_RELEASE_CHECK_H

#include "Inspection/CheckContext.h"
#include "Inspection/Findings.h"
#include "Inspection/ReleaseModel.h"
#include "Inspection/ValueCheck.h"

#include <memory>
#include <vector>

namespace Ombrel::Inspection
{

/// Checks one effect of a tree for a release, without the effects in it.
class ReleaseCheck
{
public:
    using Items = std::vector<std::unique_ptr<Findings::Item>>;

    /// @param areLosses only what the release does otherwise than this library, and errors
    ReleaseCheck(const Release::Model& release, const EffectNode& node, bool areLosses, CheckContext& context)
        : m_release(release), m_node(node), m_areLosses(areLosses), m_context(context), m_findings(context),
          m_values(m_findings, context)
    {
    }

    /// Puts what is found for the release in the place of what this library finds by its own keys, kinds and names. The rest
    /// stays, since the release is taken to do the same: effects that are nested too deep, rows of a tile.
    void Replace(Items& items);

private:
    void ReplaceFindings(Items& items);
    void CheckMap(const PropertyTree::Map& map, const PropertyTree& full, const ReleaseRecord& record,
                  const Proc::RecordSchema* own, const Place& place);
    void CheckValue(const PropertyTree& value, const PropertyTree& full, const ReleaseValue& released,
                    const Proc::ValueSchema* own, const Place& place);
    void AddOtherDefault(const PropertyTree& full, const PropertyTree& byDefault, const Place& place);

    const Release::Model& m_release;
    const EffectNode& m_node;
    const bool m_areLosses;
    CheckContext& m_context;
    Findings m_findings;
    ValueCheck m_values;
};

/// What a field that a tree lacks is read as by a release, if it is not what `full` is here; null otherwise. Keys that the
/// release does not know count for nothing.
bool IsOtherFor(const ReleaseValue& released, const PropertyTree& full, const PropertyTree& byDefault);

/// Whether a value that the release does not know is here what its missing key is read as.
/// @param own of the map around it; null if nothing is known
bool IsOwnDefault(const PropertyTree& full, const Proc::RecordSchema* own, std::string_view key, RecordInfos& infos);

/// What the release refuses in a tree, and what it loses or reads otherwise than this library.
std::vector<Finding> LossesFor(const Release& release, const PropertyTree& effectOrList);

} // namespace Ombrel::Inspection

#endif
