#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_SHAPE_MASK_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_SHAPE_MASK_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

/// A parametric mask: a shape on the frame, with one level inside and another outside it. A level tells how much shows of what
/// the mask is laid over the picture for: 0 is nothing, 255 all. By default there is no shape and the level is 0 everywhere.
///
/// It stands inside other records too, some of which begin with other levels.
class OMBREL_API SettingsEffectShapeMask : public ComparedRecord<SettingsEffectShapeMask>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_SHAPE_MASK";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    enum class Shape : std::int32_t
    {
        Circle = 0,
        Ellipse = 1,
        Square = 2,
        Rectangle = 3,
    };

    enum class ThresholdMode : std::int32_t
    {
        None = 0,
        Foreground = 1,
        Background = 2,
    };

    /// True if the record is as by default.
    bool IsEmpty() const override;

    /// True if the level is 0 everywhere, so that nothing lies over the foreground: no tilt, a background of 0, and a
    /// foreground of 0 or a shape without width and height.
    bool IsForegroundOnly() const;

    Shape m_shape = Shape::Circle;
    ThresholdMode m_thresholdMode = ThresholdMode::None;
    double m_x = 0.0;
    double m_y = 0.0;
    double m_width = 0.0;
    double m_height = 0.0;
    double m_threshold = 0.0;
    double m_rotationAngle = 0.0;
    std::uint8_t m_foreground = 255; // the level inside the shape
    std::uint8_t m_background = 0;   // the level outside
    double m_foregroundTilt = 0.0;
    double m_backgroundTilt = 0.0;
};

} // namespace Ombrel::Proc

#endif
