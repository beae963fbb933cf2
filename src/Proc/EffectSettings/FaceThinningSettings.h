#ifndef OMBREL_PROC_EFFECT_SETTINGS_FACE_THINNING_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_FACE_THINNING_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectFaceThinning.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API FaceThinningSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectFaceThinning, FaceThinningSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    FaceThinningSettings();
    FaceThinningSettings(const FaceThinningSettings&);
    FaceThinningSettings(FaceThinningSettings&&) noexcept;
    FaceThinningSettings& operator=(const FaceThinningSettings&);
    FaceThinningSettings& operator=(FaceThinningSettings&&) noexcept;
    ~FaceThinningSettings() override;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
