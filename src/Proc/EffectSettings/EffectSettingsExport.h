#ifndef OMBREL_PROC_EFFECT_SETTINGS_EFFECT_SETTINGS_EXPORT_H
#define OMBREL_PROC_EFFECT_SETTINGS_EFFECT_SETTINGS_EXPORT_H

#include "Exception/Exception.h"
#include "OmbrelExport.h"
#include "Proc/EffectSettings/IEffectSettings.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

namespace Ombrel::Proc
{
struct RecordSchema;
}

namespace Ombrel::PhotoCore
{

/// How a class gets into the registry.
enum class Registration : std::uint8_t
{
    StartUpList, // built into the registry in one step
    Factory,     // added after that, by the rule of `IEffectSettings::RegisterFactory`
    None,        // has a class id and cannot be made by it: trees of it can be written but not read back
};

/// One settings class of this library.
struct EffectClass
{
    std::string_view className;
    const char* classId;
    std::shared_ptr<IEffectSettings> (*create)();      // the class's `CreateBase`
    const Proc::RecordSchema* (*getSchema)() noexcept; // what its trees hold of its own; nothing for a class without keys
    Registration registration;
};

/// Every settings class of this library: first those of the start-up list in its order, then the others. Constant data, there
/// before any initialiser runs.
OMBREL_API std::span<const EffectClass> EffectClasses() noexcept;

/// Where the registry's two failures are raised.
inline constexpr ThrowLocation CREATE_EFFECT_SETTINGS_LOCATION{"Proc/EffectSettings/EffectSettingsExport", 208,
                                                               "CreateEffectSettings", 252};
inline constexpr ThrowLocation REGISTER_FACTORY_LOCATION{"Proc/EffectSettings/EffectSettingsExport", 217, "RegisterFactory",
                                                         243};

} // namespace Ombrel::PhotoCore

#endif
