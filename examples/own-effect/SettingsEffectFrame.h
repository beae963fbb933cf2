#ifndef STUDIO_SETTINGS_EFFECT_FRAME_H
#define STUDIO_SETTINGS_EFFECT_FRAME_H

#include "Proc/Settings/RgbaColor.h"
#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Studio
{

/// A record of a caller's own: a frame around the picture.
class SettingsEffectFrame : public Ombrel::Proc::ComparedRecord<SettingsEffectFrame>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_FRAME";
    static const std::string CLASS_ID;
    static const Ombrel::Proc::RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    enum class Style : std::int32_t
    {
        Plain = 0,
        Double = 1,
    };

    bool IsEmpty() const override;

    std::int32_t GetWidth() const { return m_width; }

    /// Pixels; a negative width counts as none.
    void SetWidth(std::int32_t value) { m_width = value < 0 ? 0 : value; }

    Style m_style = Style::Plain;
    Ombrel::Proc::RgbaColor m_color;
    std::vector<double> m_dashes;
    bool m_isInside = false;

private:
    std::int32_t m_width = 0;
};

} // namespace Studio

#endif
