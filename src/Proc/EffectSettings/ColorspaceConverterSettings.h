#ifndef OMBREL_PROC_EFFECT_SETTINGS_COLORSPACE_CONVERTER_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_COLORSPACE_CONVERTER_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsColorspaceConverter.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API ColorspaceConverterSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsColorspaceConverter, ColorspaceConverterSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
