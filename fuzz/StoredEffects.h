#ifndef OMBREL_FUZZ_STORED_EFFECTS_H
#define OMBREL_FUZZ_STORED_EFFECTS_H

#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "PropertyTree/PropertyTree.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The inputs of the targets that read effects: the JSON text of a stored effect, or of a list of them that are read one after
// the other. In a string, U+FFFD stands for a byte that is no UTF-8, which JSON cannot hold. A text, so that a seed can be
// read and written by hand.
namespace Fuzz
{

/// The trees of an input; none if it is no JSON.
std::vector<Ombrel::PropertyTree> ParseInput(const std::uint8_t* data, std::size_t size);

/// The class that a tree names, registered or not.
const Ombrel::PhotoCore::EffectClass* ClassOf(const Ombrel::PropertyTree& tree);

/// A default effect of the class.
std::shared_ptr<Ombrel::PhotoCore::IEffectSettings> Make(const Ombrel::PhotoCore::EffectClass& effectClass);

/// Reads a tree as `DeserializePtr` does, and the classes that are not registered too.
/// @return type and text of the failure, if it was one that a read may have; any other passes through
std::optional<std::string> Read(const Ombrel::PropertyTree& tree, std::shared_ptr<Ombrel::PhotoCore::IEffectSettings>& effect);

/// What of the failures that a read may have `work` throws.
std::optional<std::string> FailureOf(const std::function<void()>& work);

/// What the effect's fields belong to: its record, or the effect itself where that stores members of its own.
void* SubjectOf(Ombrel::PhotoCore::IEffectSettings& effect);

/// Whether the condition holds for a tree or any part of it.
bool HasPart(const Ombrel::PropertyTree& tree, const std::function<bool(const Ombrel::PropertyTree&)>& condition);

/// Whether one of the class ids stands anywhere in a tree of effects.
bool Names(const Ombrel::PropertyTree& tree, const std::vector<std::string_view>& classIds);

/// Whether a float that is no finite number stands anywhere in a tree.
bool HasNonFinite(const Ombrel::PropertyTree& tree);

} // namespace Fuzz

#endif
