#ifndef OMBREL_PROC_EFFECT_SETTINGS_DIRECTIONAL_AREA_DEFORMATION_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_DIRECTIONAL_AREA_DEFORMATION_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectDirectionalAreaDeformation.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API DirectionalAreaDeformationSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectDirectionalAreaDeformation,
                                              DirectionalAreaDeformationSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
