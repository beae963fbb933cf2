#ifndef OMBREL_PROC_EFFECT_SETTINGS_EFFECT_SETTINGS_EXPORT_H
#define OMBREL_PROC_EFFECT_SETTINGS_EFFECT_SETTINGS_EXPORT_H

#include "Exception/Exception.h"
#include "OmbrelExport.h"
#include "Proc/EffectSettings/IEffectSettings.h"
#include "Proc/Reflection/SpelledName.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

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

/// One settings class.
struct EffectClass
{
    std::string_view className;                           // such as "VibranceSettings"
    const char* classId;                                  // such as "EFFECT_VIBRANCE"
    std::shared_ptr<IEffectSettings> (*create)();         // the class's `CreateBase`
    const Proc::RecordSchema* (*getSchema)() noexcept;    // what its trees hold of its own; nothing for a class without keys
    void* (*getStored)(IEffectSettings& effect) noexcept; // the object of an effect of this class that the schema describes
    Registration registration;                            // how it gets into the registry
};

/// Every settings class of this library: first those of the start-up list in its order, then the others. Constant data, there
/// before any initialiser runs.
OMBREL_API std::span<const EffectClass> EffectClasses() noexcept;

/// Makes a caller's class known with its schema, so that it can be created by its class id, described and checked. Its texts
/// are copied; its functions must stay until the library is unloaded. Any number of threads may register classes while others
/// register, look up and create.
/// @throws Exception "Duplicate class id (...)!" if the id is known, also to `IEffectSettings::RegisterFactory`
OMBREL_API void RegisterEffectClass(const EffectClass& effectClass);

/// The same for `Effect`, whose record has a `CLASS_NAME`.
template <class Effect> void RegisterEffectClass()
{
    RegisterEffectClass({.className = Proc::TYPE_NAME<Effect>,
                         .classId = Effect::RecordType::CLASS_NAME,
                         .create = &Effect::CreateBase,
                         .getSchema = &Effect::GetSchema,
                         .getStored = Effect::GetStoredSource(),
                         .registration = Registration::Factory});
}

/// The class with the id: this library's own or one that a caller registered as a class. Null for any other id, and for one
/// that has a registered factory alone. What it returns stays until the library is unloaded. Any number of threads may call it
/// at once.
OMBREL_API const EffectClass* FindEffectClass(std::string_view id) noexcept;

/// Whether `IEffectSettings::CreateEffectSettings` knows the class id.
OMBREL_API bool IsRegistered(std::string_view id) noexcept;

/// All such ids, in byte order.
OMBREL_API std::vector<std::string> RegisteredClassIds();

/// Where the registry's two failures are raised.
inline constexpr ThrowLocation CREATE_EFFECT_SETTINGS_LOCATION{"Proc/EffectSettings/EffectSettingsExport", 208,
                                                               "CreateEffectSettings", 252};
inline constexpr ThrowLocation REGISTER_FACTORY_LOCATION{"Proc/EffectSettings/EffectSettingsExport", 217, "RegisterFactory",
                                                         243};

} // namespace Ombrel::PhotoCore

#endif
