#ifndef OMBREL_EFFECTS_TOOL_EFFECT_READER_H
#define OMBREL_EFFECTS_TOOL_EFFECT_READER_H

#include "Proc/EffectSettings/IEffectSettings.h"
#include "PropertyPath.h"
#include "PropertyTree/PropertyTree.h"

#include <exception>
#include <memory>
#include <optional>
#include <string>
#include <variant>

namespace Ombrel::EffectsTool
{

using EffectPtr = std::shared_ptr<PhotoCore::IEffectSettings>;

/// A stored effect that the library refuses.
struct Refusal
{
    Path place; // the value at fault, within the effect; empty if it is the effect as a whole
    std::string reason;
};

/// The effect of one stored element, which may be null, or why there is none.
std::variant<EffectPtr, Refusal> ReadEffect(const PropertyTree& element);

/// The effect, or nothing if the library refuses the element. Faster than `ReadEffect`, since it does not look for the reason.
std::optional<EffectPtr> TryReadEffect(const PropertyTree& element);

/// The text of an exception of the library.
std::string ReasonOf(const std::exception& error);

} // namespace Ombrel::EffectsTool

#endif
