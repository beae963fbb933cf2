#ifndef OMBREL_EFFECTS_TOOL_FORM_COMMANDS_H
#define OMBREL_EFFECTS_TOOL_FORM_COMMANDS_H

#include "Document.h"
#include "Report.h"

namespace Ombrel::EffectsTool
{

/// The file without what is its default.
Report ThinDocument(const Document& document);

/// The file with every key.
Report FreezeDocument(const Document& document);

/// The file as the library reads and writes it. What is changed or lost becomes a complaint; an effect that is not known stays
/// as it is.
Report NormaliseDocument(const Document& document);

} // namespace Ombrel::EffectsTool

#endif
