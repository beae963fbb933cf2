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

    const std::string& GetClassId() const override;

    /// The record's answer.
    bool IsEmpty() const override;
};

extern template class EffectSettingsImpl<SettingsEffectMaskBlender, EffectsPackageWithBrushSettings>;

} // namespace Ombrel::PhotoCore

#endif
