#ifndef OMBREL_PROC_EFFECT_SETTINGS_FLIP_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_FLIP_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectFlip.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API FlipSettings : public EffectSettingsOneInputReflection<Proc::SettingsEffectFlip, FlipSettings>
{
public:
    using EffectSettingsImpl::Add;
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;

private:
    // Both are for callers of the interface, who ask before they add.
    bool IsAdditive() const override;

    /// Each axis is flipped if exactly one of the two flips it.
    void Add(const FlipSettings& other) override;
};

} // namespace Ombrel::PhotoCore

#endif
