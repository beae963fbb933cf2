#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_HALF_TONE_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_HALF_TONE_H

#include "Proc/Settings/RgbaColor.h"
#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

/// The picture as printed in dots. It starts with black dots of no size on white, which draw nothing. Every value is stored as
/// given.
class OMBREL_API SettingsEffectHalfTone : public ComparedRecord<SettingsEffectHalfTone>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_HALF_TONE";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if every value has its default.
    bool IsEmpty() const override;

    const RgbaColor& GetBackgroundColor() const { return m_backgroundColor; }
    void SetBackgroundColor(const RgbaColor& value) { m_backgroundColor = value; }

    const RgbaColor& GetDotColor() const { return m_dotColor; }
    void SetDotColor(const RgbaColor& value) { m_dotColor = value; }

    double GetColourSize() const { return m_colourSize; }
    void SetColourSize(double value) { m_colourSize = value; }

    double GetDotSize() const { return m_dotSize; }
    void SetDotSize(double value) { m_dotSize = value; }

    double GetThreshold() const { return m_threshold; }
    void SetThreshold(double value) { m_threshold = value; }

    std::int32_t GetAngle() const { return m_angle; }
    void SetAngle(std::int32_t value) { m_angle = value; }

private:
    // Held in another order than the keys are stored in: the threshold stands before the size of the dots.
    RgbaColor m_backgroundColor{255, 255, 255, 255};
    RgbaColor m_dotColor;
    double m_colourSize = 0.0;
    double m_threshold = 0.0;
    double m_dotSize = 0.0;
    std::int32_t m_angle = 0;
};

} // namespace Ombrel::Proc

#endif
