#ifndef OMBREL_PROC_EFFECT_SETTINGS_ALPHA_EXTRACTOR_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_ALPHA_EXTRACTOR_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectAlphaExtractor.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API AlphaExtractorSettings
    : public EffectSettingsOneInputReflection<Proc::SettingsEffectAlphaExtractor, AlphaExtractorSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
