#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_BLUR_MOTION_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_BLUR_MOTION_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectBlurMotion : public ComparedRecord<SettingsEffectBlurMotion>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_BLUR_MOTION";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if `m_radius` is 0.
    bool IsEmpty() const override;

    std::int32_t m_radius = 0; // whole, unlike that of the adaptive blur
    double m_sigma = 0.0;
    double m_angle = 0.0;
};

} // namespace Ombrel::Proc

#endif
