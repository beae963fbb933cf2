#ifndef OMBREL_PROC_EFFECT_SETTINGS_EMPTY_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_EMPTY_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectEmpty.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API EmptySettings : public EffectSettingsOneInputReflection<Proc::SettingsEffectEmpty, EmptySettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    EmptySettings();
    EmptySettings(const EmptySettings&);
    EmptySettings(EmptySettings&&) noexcept;
    EmptySettings& operator=(const EmptySettings&);
    EmptySettings& operator=(EmptySettings&&) noexcept;
    ~EmptySettings() override;

    const std::string& GetClassId() const override;

    using EffectSettingsImpl::operator==;

    /// True: an effect that does nothing is like any other, whatever its value.
    bool operator==(const EmptySettings& other) const override;

    /// Lets the left effect answer. Without it the compiler would turn the two round, since this class is an exact match.
    friend bool operator==(const IEffectSettings& a, const EmptySettings& b)
    {
        return a.operator==(static_cast<const IEffectSettings&>(b));
    }
};

} // namespace Ombrel::PhotoCore

#endif
