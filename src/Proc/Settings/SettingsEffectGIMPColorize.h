#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_GIMP_COLORIZE_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_GIMP_COLORIZE_H

#include "Proc/Settings/SettingsRecord.h"

namespace Ombrel::Proc
{

/// Gives a picture one hue. Any hue changes a picture, so that the intensity is what starts at 0. Every value is stored as
/// given.
class OMBREL_API SettingsEffectGIMPColorize : public ComparedRecord<SettingsEffectGIMPColorize>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_GIMP_COLORIZE";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if every value has its default.
    bool IsEmpty() const override;

    float GetHue() const { return m_hue; }
    void SetHue(float value) { m_hue = value; }

    float GetSaturation() const { return m_saturation; }
    void SetSaturation(float value) { m_saturation = value; }

    float GetLightness() const { return m_lightness; }
    void SetLightness(float value) { m_lightness = value; }

    float GetRed() const { return m_red; }
    void SetRed(float value) { m_red = value; }

    float GetGreen() const { return m_green; }
    void SetGreen(float value) { m_green = value; }

    float GetBlue() const { return m_blue; }
    void SetBlue(float value) { m_blue = value; }

    float GetIntensity() const { return m_intensity; }
    void SetIntensity(float value) { m_intensity = value; }

private:
    float m_hue = 0.0f;
    float m_saturation = 0.0f;
    float m_lightness = 0.0f;
    float m_red = 0.0f;
    float m_green = 0.0f;
    float m_blue = 0.0f;
    float m_intensity = 0.0f;
};

} // namespace Ombrel::Proc

#endif
