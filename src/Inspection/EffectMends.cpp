#include "Inspection/EffectCheck.h"
#include "Inspection/Usable.h"
#include "Proc/Settings/StoredKeys.h"

#include <algorithm>
#include <map>
#include <variant>
#include <vector>

namespace Ombrel::Inspection
{

// Looks at the effect once more, as it would be mended. A changed value can be replaced by what it becomes if that then stays
// as it is, and what has its default without a name that goes need not be written either.
void EffectCheck::FindMends(const Map& map)
{
    const bool hasNames =
        std::ranges::any_of(m_findings.Items(),
                            [](const auto& item)
                            {
                                const Finding* finding = std::get_if<Finding>(item.get());
                                return finding && Findings::IsLeftOut(*finding) && SeverityOf(finding->code) != Severity::Error;
                            });
    if (m_isAgain || (m_comparison.Changed().empty() && !hasNames))
    {
        return;
    }
    PropertyTree mended;
    Copies copies;
    PropertyTree::Map& fields = mended.makeMap(map.size());
    fields[Proc::StoredKeys::NAME] = map.at(Proc::StoredKeys::NAME);
    for (const auto& [key, child] : map)
    {
        const auto field = Proc::FindField(*m_schema, key);
        if (field && !m_findings.IsLeftOut(child))
        {
            const Place place{.parent = m_node.place, .key = key};
            CopyUsable(child, fields[key], *m_schema->fields[*field].value, place, m_findings, &copies);
        }
    }
    for (const auto& [finding, given] : m_comparison.Changed())
    {
        if (const auto copy = copies.find(given); copy != copies.end())
        {
            *copy->second.value = finding->becomes;
        }
    }
    EffectNode node = m_node;
    node.tree = &mended;
    EffectCheck again(node, m_context);
    again.m_isAgain = true;
    again.Run();
    for (const auto& [finding, given] : m_comparison.Changed())
    {
        const auto copy = copies.find(given);
        const Finding* left = copy == copies.end() ? nullptr : again.m_findings.About(*copy->second.value);
        if (copy != copies.end() && (!left || left->code != FindingCode::ChangesOnWrite))
        {
            finding->mend = Mend::Replace;
        }
    }
    std::map<std::vector<PathStep>, const PropertyTree*> defaults; // in one order, whatever that of the copies is
    for (const auto& [given, copy] : copies)
    {
        const Finding* left = again.m_findings.About(*copy.value);
        if (left && left->code == FindingCode::DefaultWritten && !m_findings.About(*given))
        {
            defaults.emplace(copy.steps, given);
        }
    }
    for (const auto& [steps, given] : defaults)
    {
        Finding& finding = m_findings.Add(FindingCode::DefaultWritten, *m_node.place, given, "it then has its default");
        finding.path = Path(finding.path.Start(), steps);
        finding.mend = Mend::Remove;
    }
}

} // namespace Ombrel::Inspection
