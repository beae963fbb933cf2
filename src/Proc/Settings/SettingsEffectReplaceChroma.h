#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_REPLACE_CHROMA_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_REPLACE_CHROMA_H

#include "Proc/Settings/RgbaColor.h"
#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

/// Replaces one colour of the picture by another.
class OMBREL_API SettingsEffectReplaceChroma : public ComparedRecord<SettingsEffectReplaceChroma>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_REPLACE_CHROMA";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    SettingsEffectReplaceChroma() = default;

    /// The other values are as by default.
    SettingsEffectReplaceChroma(const RgbaColor& replaceColor, const RgbaColor& baseColor);

    /// True if `m_strength` is 0.
    bool IsEmpty() const override;

    RgbaColor m_replaceColor{255, 255, 255, 255};
    RgbaColor m_baseColor{0, 0, 0, 255};
    std::uint8_t m_strength = 255;
    std::uint8_t m_maxValue = 255;
    std::uint8_t m_minValue = 0;
    double m_maxThreshold = 0.0; // below the minimum: stored effects rely on this pair, odd as it is
    double m_minThreshold = 1.0;
    bool m_useBaseColor = true;
    bool m_keepLuma = true;
    bool m_correctLuma = false;
    std::int32_t m_x = 0; // the picked point
    std::int32_t m_y = 0;
};

} // namespace Ombrel::Proc

#endif
