#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_ROTATE_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_ROTATE_H

#include "Proc/Settings/RgbaColor.h"
#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

/// Rotation by a free angle. Every value is stored as given; an angle of 0 and the original size leave the picture as it is.
class OMBREL_API SettingsEffectRotate : public ComparedRecord<SettingsEffectRotate>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_ROTATE";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// The size of the result; width and height are those of `enOutputSizeCustom`.
    enum class OutputSizeMode : std::int32_t
    {
        enOutputSizeOriginal = 0,
        enOutputSizeCustom = 1,
        enOutputSizeCrop = 2,
        enOutputSizePad = 3,
    };

    /// True if every value has its default.
    bool IsEmpty() const override;

    OutputSizeMode GetOutputSizeMode() const { return m_outputSizeMode; }
    void SetOutputSizeMode(OutputSizeMode value) { m_outputSizeMode = value; }

    double GetAngle() const { return m_angle; }
    void SetAngle(double value) { m_angle = value; }

    std::int32_t GetWidth() const { return m_width; }
    void SetWidth(std::int32_t value) { m_width = value; }

    std::int32_t GetHeight() const { return m_height; }
    void SetHeight(std::int32_t value) { m_height = value; }

    bool GetIsBilinear() const { return m_isBilinear; }
    void SetIsBilinear(bool value) { m_isBilinear = value; }

    /// Fills what the turned picture does not cover.
    const RgbaColor& GetColor() const { return m_color; }
    void SetColor(const RgbaColor& value) { m_color = value; }

private:
    // The angle stands first; the stored order of the keys begins with the size mode.
    double m_angle = 0.0;
    OutputSizeMode m_outputSizeMode = OutputSizeMode::enOutputSizeOriginal;
    std::int32_t m_width = 0;
    std::int32_t m_height = 0;
    bool m_isBilinear = false;
    RgbaColor m_color;
};

} // namespace Ombrel::Proc

#endif
