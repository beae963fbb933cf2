#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_GIMP_COLOR_CORRECTION_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_GIMP_COLOR_CORRECTION_H

#include "Proc/Settings/SettingsRecord.h"

namespace Ombrel::Proc
{

/// Brightness and contrast. Every value is stored as given; 0 changes nothing.
class OMBREL_API SettingsEffectGIMPColorCorrection : public ComparedRecord<SettingsEffectGIMPColorCorrection>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_GIMP_COLOR_CORRECTION";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if every value has its default.
    bool IsEmpty() const override;

    float GetBrightness() const { return m_brightness; }
    void SetBrightness(float value) { m_brightness = value; }

    float GetContrast() const { return m_contrast; }
    void SetContrast(float value) { m_contrast = value; }

private:
    float m_brightness = 0.0f;
    float m_contrast = 0.0f;
};

} // namespace Ombrel::Proc

#endif
