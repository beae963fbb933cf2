#ifndef OMBREL_EFFECTS_TOOL_ADDRESS_H
#define OMBREL_EFFECTS_TOOL_ADDRESS_H

#include "Document.h"
#include "Proc/Reflection/Schema.h"
#include "PropertyPath.h"
#include "PropertyTree/PropertyTree.h"

#include <cstddef>
#include <string>

namespace Ombrel::EffectsTool
{

/// What a path of the user leads to: one effect of a document, and the rest of the path within it.
struct Address
{
    std::size_t index;
    Path rest;
};

/// @throws ToolError `Usage` if there is no such effect
Address Locate(const Document& document, const Path& path);

/// The beginning of a message about a place: "file: path: ".
std::string Where(const Document& document, std::size_t index, PathView place = {});

/// What may stand at a place of a stored effect that has every key; null where that is not known. The place exists.
const Proc::ValueSchema* SchemaAt(const PropertyTree& effect, PathView place);

/// Refuses a path that leads nowhere in `tree`: names what is there, and what is most like the step that is not.
/// @throws ToolError `Usage`
[[noreturn]] void ThrowNoSuchPlace(const Document& document, std::size_t index, const PropertyTree& tree, PathView place);

} // namespace Ombrel::EffectsTool

#endif
