#ifndef OMBREL_PROC_EFFECT_SETTINGS_TEXTURE_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_TEXTURE_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectTexture.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API TextureSettings : public EffectSettingsOneInputReflection<Proc::SettingsEffectTexture, TextureSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    TextureSettings();
    TextureSettings(const TextureSettings&);
    TextureSettings(TextureSettings&&) noexcept;
    TextureSettings& operator=(const TextureSettings&);
    TextureSettings& operator=(TextureSettings&&) noexcept;
    ~TextureSettings() override;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
