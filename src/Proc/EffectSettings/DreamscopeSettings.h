#ifndef OMBREL_PROC_EFFECT_SETTINGS_DREAMSCOPE_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_DREAMSCOPE_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectDreamscope.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API DreamscopeSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectDreamscope, DreamscopeSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    DreamscopeSettings();
    DreamscopeSettings(const DreamscopeSettings&);
    DreamscopeSettings(DreamscopeSettings&&) noexcept;
    DreamscopeSettings& operator=(const DreamscopeSettings&);
    DreamscopeSettings& operator=(DreamscopeSettings&&) noexcept;
    ~DreamscopeSettings() override;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
