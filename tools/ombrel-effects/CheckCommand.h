#ifndef OMBREL_EFFECTS_TOOL_CHECK_COMMAND_H
#define OMBREL_EFFECTS_TOOL_CHECK_COMMAND_H

#include "Document.h"
#include "FindingText.h"
#include "Inspection/Release.h"
#include "Report.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace Ombrel::EffectsTool
{

struct CheckSettings
{
    bool isStrict = false; // notes raise the exit code too
    bool isFixing = false; // the document is mended, and the findings are complaints
    bool isJson = false;
    bool isColoured = false;
    std::size_t maxFindings = MOST_SHOWN;
    std::shared_ptr<const Inspection::Release> release; // null for this one
    std::vector<Inspection::FindingCode> ignored;
};

/// The code of the text, such as "unknown-name".
std::optional<Inspection::FindingCode> CodeOf(std::string_view text);

/// What is wrong with a file: a line for each finding, or the mended document.
Report CheckDocument(const Document& document, const CheckSettings& settings);

} // namespace Ombrel::EffectsTool

#endif
