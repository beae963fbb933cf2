#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_BLUR_RADIAL_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_BLUR_RADIAL_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>
#include <vector>

namespace Ombrel::Proc
{

/// Blur around a point, along a line or along a trace of points. With a strength of 0 the picture stays as it is.
class OMBREL_API SettingsEffectBlurRadial : public ComparedRecord<SettingsEffectBlurRadial>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_BLUR_RADIAL";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    enum class BlurRadialMode : std::int32_t
    {
        Radial = 0,
        Linear = 1,
        Custom = 2,
    };

    /// A point of the trace.
    struct TracePoint
    {
        OMBREL_API static const RecordSchema& Schema() noexcept;

        bool operator==(const TracePoint&) const = default;

        std::int32_t m_x = 0;
        std::int32_t m_y = 0;
    };

    /// True if the record is as by default.
    bool IsEmpty() const override;

    BlurRadialMode m_mode = BlurRadialMode::Radial;
    double m_x = 0.0;
    double m_y = 0.0;
    double m_strength = 0.0;
    double m_angle = 0.0;
    std::vector<TracePoint> m_trace;
};

} // namespace Ombrel::Proc

#endif
