#ifndef OMBREL_PROC_EFFECT_SETTINGS_EDGE_DETECT_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_EDGE_DETECT_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectEdgeDetect.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API EdgeDetectSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectEdgeDetect, EdgeDetectSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
