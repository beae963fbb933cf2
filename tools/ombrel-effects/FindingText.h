#ifndef OMBREL_EFFECTS_TOOL_FINDING_TEXT_H
#define OMBREL_EFFECTS_TOOL_FINDING_TEXT_H

#include "Document.h"
#include "Inspection/Finding.h"
#include "PropertyTree/PropertyTree.h"

#include <string>

namespace Ombrel::EffectsTool
{

/// What a finding says, in one line: "expected an integer, found "x"; did you mean "radius"? [wrong-kind]". The line holds no
/// control character and is valid UTF-8.
std::string MessageOf(const Inspection::Finding& finding);

/// "FILE:LINE:COLUMN: error: PATH: message [code]", without a line end.
/// @param isColoured with the colours of a terminal
std::string LineOf(const Inspection::Finding& finding, const Document& document, bool isColoured);

/// The finding as the JSON output has it: see docs/check-output.schema.json.
PropertyTree JsonOf(const Inspection::Finding& finding, const Document& document);

} // namespace Ombrel::EffectsTool

#endif
