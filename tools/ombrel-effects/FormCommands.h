#ifndef OMBREL_EFFECTS_TOOL_FORM_COMMANDS_H
#define OMBREL_EFFECTS_TOOL_FORM_COMMANDS_H

#include "Document.h"
#include "Inspection/Release.h"
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

/// The file as a release reads it. What that does not read to the same values becomes a complaint.
Report ConvertDocument(const Document& document, const Inspection::Release& release);

} // namespace Ombrel::EffectsTool

#endif
