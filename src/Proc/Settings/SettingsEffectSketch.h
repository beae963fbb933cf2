#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_SKETCH_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_SKETCH_H

#include "Proc/Settings/RgbaColor.h"
#include "Proc/Settings/SettingsEffectBlurRadial.h"
#include "Proc/Settings/SettingsEffectCharcoal.h"
#include "Proc/Settings/SettingsEffectCompose.h"
#include "Proc/Settings/SettingsEffectNoiseVideo.h"
#include "Proc/Settings/SettingsRecord.h"

namespace Ombrel::Proc
{

/// Pencil sketch, made of four other effects side by side. Each begins with values tuned for the sketch: a missing nested
/// record takes those, a missing field of one that is present the nested record's own default.
class OMBREL_API SettingsEffectSketch : public ComparedRecord<SettingsEffectSketch>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_SKETCH";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// Noise of strength 100, a linear blur of strength 0.1 at 135 degrees, charcoal of radius and sigma 3, all put together by
    /// `ColorDodgeCompositeOp`.
    SettingsEffectSketch();
    RgbaColor m_color;
    SettingsEffectNoiseVideo m_noise{100, SettingsEffectNoiseVideo::Method::Gaussian};
    SettingsEffectBlurRadial m_motion;
    SettingsEffectCharcoal m_charcoal;
    SettingsEffectCompose m_compose;
};

} // namespace Ombrel::Proc

#endif
