#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_COLOR_BALANCE_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_COLOR_BALANCE_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

/// Manual colour balance. Every value is stored as given but the hue.
class OMBREL_API SettingsEffectColorBalance : public ComparedRecord<SettingsEffectColorBalance>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_COLOR_BALANCE";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if all nine values are 0, as by default. With another gamma weight alone the record is not empty.
    bool IsEmpty() const override;

    std::int32_t GetBrightness() const { return m_brightness; }
    void SetBrightness(std::int32_t value) { m_brightness = value; }

    std::int32_t GetContrast() const { return m_contrast; }
    void SetContrast(std::int32_t value) { m_contrast = value; }

    std::int32_t GetSaturation() const { return m_saturation; }
    void SetSaturation(std::int32_t value) { m_saturation = value; }

    std::int32_t GetHue() const { return m_hue; }

    /// Degrees. Stores the angle from -180 to 179 that is a whole number of turns away; only 180 itself stays 180.
    void SetHue(std::int32_t value);

    std::int32_t GetGamma() const { return m_gamma; }
    void SetGamma(std::int32_t value) { m_gamma = value; }

    std::int32_t GetGammaRed() const { return m_gammaRed; }
    void SetGammaRed(std::int32_t value) { m_gammaRed = value; }

    std::int32_t GetGammaGreen() const { return m_gammaGreen; }
    void SetGammaGreen(std::int32_t value) { m_gammaGreen = value; }

    std::int32_t GetGammaBlue() const { return m_gammaBlue; }
    void SetGammaBlue(std::int32_t value) { m_gammaBlue = value; }

    std::int32_t GetGammaWeight() const { return m_gammaWeight; }
    void SetGammaWeight(std::int32_t value) { m_gammaWeight = value; }

private:
    std::int32_t m_brightness = 0;
    std::int32_t m_contrast = 0;
    std::int32_t m_saturation = 0;
    std::int32_t m_hue = 0;
    std::int32_t m_gamma = 0;
    std::int32_t m_gammaRed = 0;
    std::int32_t m_gammaGreen = 0;
    std::int32_t m_gammaBlue = 0;
    std::int32_t m_gammaWeight = 0;
};

} // namespace Ombrel::Proc

#endif
