#ifndef OMBREL_PROC_EFFECT_SETTINGS_CROP_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_CROP_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectCrop.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API CropSettings : public EffectSettingsOneInputReflection<Proc::SettingsEffectCrop, CropSettings>
{
public:
    using EffectSettingsImpl::Add;
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;

private:
    // Both are for callers of the interface, who ask before they add.
    bool IsAdditive() const override;

    /// The areas add up: the offsets are summed in 32 bits, where they wrap, and the size of `other` replaces this one.
    void Add(const CropSettings& other) override;
};

} // namespace Ombrel::PhotoCore

#endif
