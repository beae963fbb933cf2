#ifndef OMBREL_PROC_EFFECT_SETTINGS_REPLACE_CHROMA_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_REPLACE_CHROMA_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectReplaceChroma.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API ReplaceChromaSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectReplaceChroma, ReplaceChromaSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
