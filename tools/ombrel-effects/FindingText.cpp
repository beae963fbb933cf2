#include "FindingText.h"

#include "PropertyTreeJson/MessageText.h"

#include <utility>
#include <vector>

namespace Ombrel::EffectsTool
{

using Inspection::Finding;
using Inspection::Mend;
using Inspection::Severity;

namespace
{

std::string Coloured(const std::string& text, const char* colour, bool isColoured)
{
    return isColoured ? std::string("\x1b[") + colour + "m" + text + "\x1b[0m" : text;
}

const char* ColourOf(Severity severity)
{
    switch (severity)
    {
    case Severity::Error:
        return "1;31";
    case Severity::Warning:
        return "1;35";
    case Severity::Note:
        break;
    }
    return "1;36";
}

const char* NameOf(Mend mend)
{
    switch (mend)
    {
    case Mend::Replace:
        return "replace";
    case Mend::Remove:
        return "remove";
    case Mend::RemoveElement:
        return "remove-element";
    case Mend::None:
        break;
    }
    return "none";
}

} // namespace

std::string MessageOf(const Finding& finding)
{
    std::string text = finding.message;
    if (!finding.expected.empty() && text.find("expected") == std::string::npos)
    {
        text += "; expected " + finding.expected;
    }
    if (!finding.nearest.empty())
    {
        text += "; did you mean \"" + finding.nearest + "\"?";
    }
    return MessageText::Printable(text) + " [" + std::string(TextOf(finding.code)) + "]";
}

std::string LineOf(const Finding& finding, const Document& document, bool isColoured)
{
    const JsonPlace place = document.PlaceOf(finding.path);
    const Severity severity = SeverityOf(finding.code);
    const std::string path = document.TextOf(finding.path);
    return Coloured(document.Name() + ":" + std::to_string(place.line) + ":" + std::to_string(place.column) + ":", "1",
                    isColoured) +
           " " + Coloured(std::string(TextOf(severity)) + ":", ColourOf(severity), isColoured) + " " + path +
           (path.empty() ? "" : ": ") + MessageOf(finding);
}

std::string LineOfEffect(Finding finding, const Document& document, std::size_t index)
{
    if (document.IsList())
    {
        std::vector<Inspection::PathStep> steps = finding.path.Steps();
        steps.emplace(steps.begin(), index);
        finding.path = Inspection::Path(std::move(steps));
    }
    return LineOf(finding, document, false);
}

std::string MoreText(const Document& document, std::size_t count)
{
    return document.Name() + ": " + std::to_string(count) + " more, which check --max-findings shows";
}

PropertyTree JsonOf(const Finding& finding, const Document& document)
{
    const JsonPlace place = document.PlaceOf(finding.path);
    PropertyTree json;
    json["file"] = document.Name();
    if (const PropertyTree* id = document.Id())
    {
        json["id"] = *id;
    }
    json["line"] = place.line;
    json["column"] = place.column;
    json["path"] = document.TextOf(finding.path);
    json["severity"] = std::string(TextOf(SeverityOf(finding.code)));
    json["code"] = std::string(TextOf(finding.code));
    json["message"] = MessageText::Printable(finding.message);
    json["mend"] = NameOf(finding.mend);
    json["found"] = finding.found;
    json["becomes"] = finding.becomes;
    json["expected"] = MessageText::Printable(finding.expected);
    json["nearest"] = MessageText::Printable(finding.nearest);
    return json;
}

} // namespace Ombrel::EffectsTool
