#ifndef OMBREL_PROC_EFFECT_SETTINGS_EFFECTS_PACKAGE_WITH_BRUSH_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_EFFECTS_PACKAGE_WITH_BRUSH_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/EffectSettings/SettingsEffectMaskBlender.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API EffectsPackageWithBrushSettings
    : public EffectSettingsOneInputReflection<SettingsEffectMaskBlender, EffectsPackageWithBrushSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    EffectsPackageWithBrushSettings();
    EffectsPackageWithBrushSettings(const EffectsPackageWithBrushSettings&); // shares the effects, and so does a clone
    EffectsPackageWithBrushSettings(EffectsPackageWithBrushSettings&&) noexcept;
    EffectsPackageWithBrushSettings& operator=(const EffectsPackageWithBrushSettings&);
    EffectsPackageWithBrushSettings& operator=(EffectsPackageWithBrushSettings&&) noexcept;
    ~EffectsPackageWithBrushSettings() override;

    const std::string& GetClassId() const override;

    /// The record's answer.
    bool IsEmpty() const override;
};

} // namespace Ombrel::PhotoCore

#endif
