#ifndef OMBREL_PROC_EFFECT_SETTINGS_OIL_PAINT_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_OIL_PAINT_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectOilPaint.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API OilPaintSettings : public EffectSettingsOneInputReflection<Proc::SettingsEffectOilPaint, OilPaintSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
