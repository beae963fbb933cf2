#ifndef OMBREL_PROC_EFFECT_SETTINGS_HISTOGRAM_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_HISTOGRAM_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectHistogram.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API HistogramSettings : public EffectSettingsOneInputReflection<Proc::SettingsEffectHistogram, HistogramSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
