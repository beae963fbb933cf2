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

// What the file holds and a read changes, loses or refuses, with what stands there.
std::string LinesOf(const std::vector<Finding>& findings)
{
    std::string text;
    for (const Finding& finding : findings)
    {
        if (SeverityOf(finding.code) != Severity::Note)
        {
            const std::string path = MessageText::Printable(finding.path.ToText());
            text += "  ! " + path + (path.empty() ? "" : " = ") + (path.empty() ? "" : ShownInBrief(finding.found)) +
                    (path.empty() ? "" : ": ") + MessageOf(finding) + "\n";
        }
    }
    return text;
}

std::string ListingOf(const PropertyTree& effect, const std::vector<Finding>& findings, bool isChangedOnly)
{
    std::string text = HeadOf(effect) + "\n";
    const PropertyTree written = Inspection::Normalise(WithoutErrors(effect, findings));
    const PropertyTree full = Inspection::Freeze(written);
    if (full.isMap())
    {
        for (const auto& [key, value] : full.getMap())
        {
            // What has its default is not written.
            const bool isChanged = written.contains(key);
            const bool isOfEveryEffect = std::ranges::find(Proc::StoredKeys::RESERVED, key) != Proc::StoredKeys::RESERVED.end();
            if (key != Proc::StoredKeys::NAME && (isChanged || (!isChangedOnly && !isOfEveryEffect)))
            {
                text += std::string(isChanged ? "  * " : "    ") + key + " = " + Shown(value) + '\n';
            }
        }
    }
    return text + LinesOf(findings);
}

} // namespace

Report ShowDocument(const Document& document, bool isChangedOnly)
{
    Report report;
    for (std::size_t index = 0; index < document.Size(); ++index)
    {
        const PropertyTree& effect = document[index];
        const std::vector<Finding> findings = Inspection::Check(effect);
        report.out += document.IsList() ? std::to_string(index) + "  " : "";
        report.out += effect.isNull() ? "null\n" : ListingOf(effect, findings, isChangedOnly);
        if (!IsReadable(findings, false))
        {
            report.Raise(ExitCode::BadInput);
        }
    }
    return report;
}

Report ShowAsJson(const Document& document)
{
    Report report;
    const std::vector<Finding> findings = Inspection::Check(document.Tree());
    report.out = document.TextWith(FullForm(document.Tree(), findings));
    for (const Finding& finding : findings)
    {
        if (SeverityOf(finding.code) == Severity::Error)
        {
            report.Complain(IsOfUnknownEffect(finding) ? ExitCode::Fine : ExitCode::BadInput, LineOf(finding, document, false));
        }
    }
    return report;
}

} // namespace Ombrel::EffectsTool
