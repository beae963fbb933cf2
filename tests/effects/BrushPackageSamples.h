#ifndef OMBREL_TESTS_EFFECTS_BRUSH_PACKAGE_SAMPLES_H
#define OMBREL_TESTS_EFFECTS_BRUSH_PACKAGE_SAMPLES_H

#include "Proc/EffectSettings/AcidSettings.h"
#include "Proc/EffectSettings/EffectsPackageWithBrushSettings.h"
#include "Proc/EffectSettings/VibranceSettings.h"

#include <memory>

namespace BrushPackageSamples
{

using Record = Ombrel::PhotoCore::SettingsEffectMaskBlender;
using EffectList = Record::EffectList;

/// A vibrance, whose record is empty at strength 0.
inline std::shared_ptr<Ombrel::PhotoCore::VibranceSettings> Vibrance(int strength)
{
    const auto effect = std::make_shared<Ombrel::PhotoCore::VibranceSettings>();
    effect->GetTypedSettings().m_strength = strength;
    return effect;
}

/// An acid, whose record is empty at radius 0 and which never says so itself.
inline std::shared_ptr<Ombrel::PhotoCore::AcidSettings> Acid(int radius)
{
    const auto effect = std::make_shared<Ombrel::PhotoCore::AcidSettings>();
    effect->GetTypedSettings().radius = radius;
    return effect;
}

inline Record Foreground(const EffectList& effects)
{
    Record record;
    record.SetForegroundEffects(effects);
    return record;
}

inline Record Background(const EffectList& effects)
{
    Record record;
    record.SetBackgroundEffects(effects);
    return record;
}

} // namespace BrushPackageSamples

#endif
