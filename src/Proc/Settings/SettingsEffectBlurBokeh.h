#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_BLUR_BOKEH_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_BLUR_BOKEH_H

#include "Proc/Settings/SettingsRecord.h"

#include <string>

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectBlurBokeh : public ComparedRecord<SettingsEffectBlurBokeh>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_BLUR_BOKEH";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if `m_bokeh` is empty, or `m_size` or `m_strength` is 0.
    bool IsEmpty() const override;

    std::string m_bokeh;
    double m_size = 0.05;
    double m_bokehGain = 5.0;
    double m_imageGain = 5.0;
    double m_strength = 0.0;
    double m_threshold = 0.5;
    double m_bokehThreshold = 0.75;
    double m_imageThreshold = 0.75;
};

} // namespace Ombrel::Proc

#endif
