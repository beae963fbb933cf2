#ifndef OMBREL_PROC_EFFECT_SETTINGS_REGISTERED_CLASSES_H
#define OMBREL_PROC_EFFECT_SETTINGS_REGISTERED_CLASSES_H

#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "Proc/EffectSettings/IEffectSettings.h"

#include <atomic>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace Ombrel::PhotoCore
{

/// What callers register, by class ids. It stays until the library is unloaded. Any number of threads may look it up while
/// others add to it.
class RegisteredClasses
{
public:
    struct Entry
    {
        std::string id;
        IEffectSettings::Factory factory;
        std::string className;
        std::optional<EffectClass> effectClass; // with the two texts; nothing for a factory alone
    };

    /// There before any initialiser of the program and after its destructors.
    static const RegisteredClasses& Get();

    /// The entry of the class id, or null. Unlike `Get`, it needs no memory.
    static const Entry* Find(std::string_view id) noexcept;

    RegisteredClasses() = default;
    RegisteredClasses(const RegisteredClasses&) = delete;
    RegisteredClasses& operator=(const RegisteredClasses&) = delete;
    ~RegisteredClasses();

    /// By class id.
    std::span<const Entry* const> All() const noexcept;

    /// False if the class id is known already; its entry stays.
    bool Add(const std::string& id, IEffectSettings::Factory&& factory) const;

    /// The same, with a copy of the texts of `effectClass`.
    bool Add(const EffectClass& effectClass) const;

private:
    struct Table;

    bool Add(Entry&& entry) const;

    // A table never changes: a further entry makes a new table, which takes the place of the old one as a whole. Old tables
    // stay, since another thread may still look into them.
    mutable std::atomic<const Table*> m_table = nullptr;
};

} // namespace Ombrel::PhotoCore

#endif
