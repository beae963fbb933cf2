#include "Inspection/Findings.h"

#include <utility>

namespace Ombrel::Inspection
{

Finding& Findings::Add(FindingCode code, const Place& place, const PropertyTree* at, std::string message)
{
    Finding& finding = std::get<Finding>(*m_items.emplace_back(std::make_unique<Item>(Finding())));
    if (const Place& effect = place.Effect(); m_effect != &effect)
    {
        m_pathOfEffect = m_context.PathOfEffect(effect);
        m_effect = &effect;
    }
    finding.path = Path(m_pathOfEffect, place.StepsFrom(*m_effect));
    finding.code = code;
    finding.message = std::move(message);
    if (at)
    {
        finding.found = *at;
        Finding*& about = m_byValue[at];
        if (!about || SeverityOf(code) < SeverityOf(about->code))
        {
            about = &finding;
        }
    }
    m_errors += SeverityOf(code) == Severity::Error ? 1U : 0U;
    return finding;
}

bool Findings::HasError(const PropertyTree& value)
{
    const Finding* finding = About(value);
    return finding && SeverityOf(finding->code) == Severity::Error;
}

bool Findings::IsLeftOut(const PropertyTree& value)
{
    const Finding* finding = About(value);
    return finding && IsLeftOut(*finding);
}

bool Findings::IsLeftOut(const Finding& finding) noexcept
{
    return SeverityOf(finding.code) == Severity::Error ||
           (finding.mend == Mend::Remove &&
            (finding.code == FindingCode::NumberForName || finding.code == FindingCode::UnknownName));
}

Finding* Findings::About(const PropertyTree& value)
{
    if (m_byValue.empty())
    {
        return nullptr;
    }
    const auto found = m_byValue.find(&value);
    return found == m_byValue.end() ? nullptr : found->second;
}

} // namespace Ombrel::Inspection
