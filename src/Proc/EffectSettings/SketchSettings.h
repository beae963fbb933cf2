#ifndef OMBREL_PROC_EFFECT_SETTINGS_SKETCH_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_SKETCH_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectSketch.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API SketchSettings : public EffectSettingsOneInputReflection<Proc::SettingsEffectSketch, SketchSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    SketchSettings();
    SketchSettings(const SketchSettings&);
    SketchSettings(SketchSettings&&) noexcept;
    SketchSettings& operator=(const SketchSettings&);
    SketchSettings& operator=(SketchSettings&&) noexcept;
    ~SketchSettings() override;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
