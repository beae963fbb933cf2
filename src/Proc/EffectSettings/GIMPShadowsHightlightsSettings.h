#ifndef OMBREL_PROC_EFFECT_SETTINGS_GIMP_SHADOWS_HIGHTLIGHTS_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_GIMP_SHADOWS_HIGHTLIGHTS_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectGIMPShadowsHightlights.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API GIMPShadowsHightlightsSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectGIMPShadowsHightlights, GIMPShadowsHightlightsSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
