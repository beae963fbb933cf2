#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_GIMP_HUE_SATURATION_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_GIMP_HUE_SATURATION_H

#include "Proc/Settings/SettingsRecord.h"

#include <array>
#include <cstdint>

namespace Ombrel::Proc
{

/// Shifts of hue, lightness and saturation, for the whole picture and for six ranges of hue. Every value is stored as given;
/// shifts of 0 change nothing.
///
/// Only the master range has keys. The others are copied and compared, but never stored: what they hold is lost in a tree, and
/// reading one leaves them as they are.
class OMBREL_API SettingsEffectGIMPHueSaturation : public SettingsRecord<SettingsEffectGIMPHueSaturation>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_GIMP_HUE_SATURATION";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// The whole picture, or one range of hue.
    enum class HueRange : std::int32_t
    {
        Master = 0,
        Red = 1,
        Yellow = 2,
        Green = 3,
        Cyan = 4,
        Blue = 5,
        Magenta = 6,
    };

    /// True if every value has its default, in each range.
    bool IsEmpty() const override;

    /// The shift of hue in the range.
    /// @throws std::out_of_range if `range` is none of the above
    float GetHue(HueRange range) const { return At(range).hue; }
    void SetHue(HueRange range, float value) { At(range).hue = value; }

    /// The shift of lightness in the range.
    /// @throws std::out_of_range if `range` is none of the above
    float GetLightness(HueRange range) const { return At(range).lightness; }
    void SetLightness(HueRange range, float value) { At(range).lightness = value; }

    /// The shift of saturation in the range.
    /// @throws std::out_of_range if `range` is none of the above
    float GetSaturation(HueRange range) const { return At(range).saturation; }
    void SetSaturation(HueRange range, float value) { At(range).saturation = value; }

    /// The strength of the shifts; 1 by default.
    float GetIntensity() const { return m_intensity; }
    void SetIntensity(float value) { m_intensity = value; }

    /// The overlap of the ranges; 0 by default.
    float GetOverlap() const { return m_overlap; }
    void SetOverlap(float value) { m_overlap = value; }

    /// All values of all ranges, those without a key too.
    bool operator==(const SettingsEffectGIMPHueSaturation& other) const;

private:
    struct Shift
    {
        float hue = 0.0f;
        float lightness = 0.0f;
        float saturation = 0.0f;

        bool operator==(const Shift&) const = default;
    };

    Shift& At(HueRange range) { return m_shifts.at(static_cast<std::size_t>(range)); }
    const Shift& At(HueRange range) const { return m_shifts.at(static_cast<std::size_t>(range)); }

    std::array<Shift, 7> m_shifts; // by HueRange
    float m_intensity = 1.0f;
    float m_overlap = 0.0f;
};

} // namespace Ombrel::Proc

#endif
