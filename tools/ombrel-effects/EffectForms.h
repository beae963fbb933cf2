#ifndef OMBREL_EFFECTS_TOOL_EFFECT_FORMS_H
#define OMBREL_EFFECTS_TOOL_EFFECT_FORMS_H

#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "PropertyTree/PropertyTree.h"

#include <memory>
#include <string_view>

namespace Ombrel::EffectsTool
{

/// "1", "2" or "var": how many images a class takes.
const char* InputsOf(const PhotoCore::EffectClass& effectClass);

/// For people: how a class gets into the registry, and whether its effects have a property access.
const char* RegistrationText(PhotoCore::Registration registration);
const char* AccessText(const PhotoCore::EffectClass& effectClass);

/// The stored form, without values that equal their defaults.
PropertyTree StoredForm(const std::shared_ptr<const PhotoCore::IEffectSettings>& effect);

/// The stored form with every property, including those that equal their defaults. For an effect without a property access, it
/// is the stored form.
PropertyTree FullForm(const std::shared_ptr<const PhotoCore::IEffectSettings>& effect);

} // namespace Ombrel::EffectsTool

#endif
