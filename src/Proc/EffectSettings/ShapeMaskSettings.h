#ifndef OMBREL_PROC_EFFECT_SETTINGS_SHAPE_MASK_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_SHAPE_MASK_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectShapeMask.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API ShapeMaskSettings : public EffectSettingsOneInputReflection<Proc::SettingsEffectShapeMask, ShapeMaskSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
