#ifndef OMBREL_EFFECTS_TOOL_SHOW_COMMAND_H
#define OMBREL_EFFECTS_TOOL_SHOW_COMMAND_H

#include "Document.h"
#include "Report.h"

namespace Ombrel::EffectsTool
{

/// Every effect with its properties, for people, and what is wrong with them.
/// @param isChangedOnly without what has its default
Report ShowDocument(const Document& document, bool isChangedOnly);

/// What is read, with every key, as a document.
Report ShowAsJson(const Document& document);

} // namespace Ombrel::EffectsTool

#endif
