#include "ShowCommand.h"

#include "FindingText.h"
#include "Inspection/Check.h"
#include "Inspection/Forms.h"
#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "Proc/Settings/StoredKeys.h"
#include "PropertyPath.h"
#include "PropertyTreeJson/MessageText.h"
#include "Reading.h"
#include "Values.h"

#include <algorithm>
#include <string>
#include <vector>

namespace Ombrel::EffectsTool
{
namespace
{

using Inspection::Finding;
using Inspection::Severity;

// The class id, and the class where it is known.
std::string HeadOf(const PropertyTree& effect)
{
    const PropertyTree* name = FindChild(effect, std::string(Proc::StoredKeys::NAME));
    if (!name || !IsString(*name))
    {
        return ShownInBrief(effect);
    }
    const std::string& id = name->getScalar().toString();
    const auto* effectClass = PhotoCore::FindEffectClass(id);
    return MessageText::Printable(id) + (effectClass ? "  " + std::string(effectClass->className) : std::string());
}

// The effects of a document, a line for each key, with what a read changes, loses or refuses and what stands there.
class Listing
{
public:
    Listing(const Document& document, bool isChangedOnly) : m_document(document), m_isChangedOnly(isChangedOnly) {}

    void Add(const PropertyTree& effect, const std::vector<Finding>& findings)
    {
        m_text += HeadOf(effect) + "\n";
        const PropertyTree written = WrittenForm(effect, findings);
        const PropertyTree full = Inspection::Freeze(written);
        if (full.isMap())
        {
            AddKeys(full.getMap(), written);
        }
        AddFindings(findings);
    }

    void Add(const std::string& text) { m_text += text; }

    std::string Text() const
    {
        return m_findings <= MOST_SHOWN ? m_text : m_text + MoreText(m_document, m_findings - MOST_SHOWN) + "\n";
    }

private:
    void AddKeys(const PropertyTree::Map& full, const PropertyTree& written)
    {
        for (const auto& [key, value] : full)
        {
            // What has its default is not written.
            const bool isChanged = written.contains(key);
            const bool isOfEveryEffect = std::ranges::find(Proc::StoredKeys::RESERVED, key) != Proc::StoredKeys::RESERVED.end();
            if (key != Proc::StoredKeys::NAME && (isChanged || (!m_isChangedOnly && !isOfEveryEffect)))
            {
                m_text += std::string(isChanged ? "  * " : "    ") + key + " = " + Shown(value) + '\n';
            }
        }
    }

    void AddFindings(const std::vector<Finding>& findings)
    {
        for (const Finding& finding : findings)
        {
            if (SeverityOf(finding.code) != Severity::Note && ++m_findings <= MOST_SHOWN)
            {
                const std::string path = MessageText::Printable(finding.path.ToText());
                m_text += "  ! " + path + (path.empty() ? "" : " = " + ShownInBrief(finding.found) + ": ") +
                          MessageOf(finding) + "\n";
            }
        }
    }

    const Document& m_document;
    const bool m_isChangedOnly;
    std::string m_text;
    std::size_t m_findings = 0;
};

} // namespace

Report ShowDocument(const Document& document, bool isChangedOnly)
{
    Report report;
    Listing listing(document, isChangedOnly);
    for (std::size_t index = 0; index < document.Size(); ++index)
    {
        const PropertyTree& effect = document[index];
        listing.Add(document.IsList() ? std::to_string(index) + "  " : "");
        if (effect.isNull())
        {
            listing.Add("null\n");
            continue;
        }
        const std::vector<Finding> findings = Inspection::Check(effect);
        listing.Add(effect, findings);
        if (!IsReadable(findings, false))
        {
            report.Raise(ExitCode::BadInput);
        }
    }
    report.out = listing.Text();
    return report;
}

Report ShowAsJson(const Document& document)
{
    Report report;
    const std::vector<Finding> findings = Inspection::Check(document.Tree());
    report.out = document.TextWith(FullForm(document.Tree(), findings));
    ComplainOf(findings, document, report,
               [](const Finding& finding) -> std::optional<ExitCode>
               {
                   if (SeverityOf(finding.code) != Severity::Error)
                   {
                       return std::nullopt;
                   }
                   return IsOfUnknownEffect(finding) ? ExitCode::Fine : ExitCode::BadInput;
               });
    return report;
}

} // namespace Ombrel::EffectsTool
