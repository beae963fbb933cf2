#ifndef OMBREL_PROC_EFFECT_SETTINGS_REGISTERED_FACTORIES_H
#define OMBREL_PROC_EFFECT_SETTINGS_REGISTERED_FACTORIES_H

#include "Proc/EffectSettings/IEffectSettings.h"

#include <atomic>
#include <string>
#include <string_view>

namespace Ombrel::PhotoCore
{

/// The factories that callers register, by their class ids. They stay until the library is unloaded. Any number of threads may
/// look them up while others are added.
class RegisteredFactories
{
public:
    using Factory = IEffectSettings::Factory;

    /// There before any initialiser of the program and after its destructors.
    static const RegisteredFactories& Get();

    RegisteredFactories() = default;
    RegisteredFactories(const RegisteredFactories&) = delete;
    RegisteredFactories& operator=(const RegisteredFactories&) = delete;
    ~RegisteredFactories();

    /// The factory of the class id, or null.
    const Factory* Find(std::string_view id) const noexcept;

    /// False if the class id has a factory already, which stays.
    bool Add(const std::string& id, Factory&& factory) const;

private:
    struct Table;

    // A table never changes: a further factory makes a new table, which takes the place of the old one as a whole. Old tables
    // stay, since another thread may still look into them.
    mutable std::atomic<const Table*> m_table = nullptr;
};

} // namespace Ombrel::PhotoCore

#endif
