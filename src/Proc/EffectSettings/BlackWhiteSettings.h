#ifndef OMBREL_PROC_EFFECT_SETTINGS_BLACK_WHITE_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_BLACK_WHITE_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectBlackWhite.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API BlackWhiteSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectBlackWhite, BlackWhiteSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
