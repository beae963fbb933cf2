#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_GIMP_COLOR_TEMPERATURE_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_GIMP_COLOR_TEMPERATURE_H

#include "Proc/Settings/SettingsRecord.h"

namespace Ombrel::Proc
{

/// Moves a picture from one colour temperature to another, both in kelvin; two equal ones change nothing. Every value is
/// stored as given.
class OMBREL_API SettingsEffectGIMPColorTemperature : public ComparedRecord<SettingsEffectGIMPColorTemperature>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_GIMP_COLOR_TEMPERATURE";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if every value has its default. With two equal temperatures other than 6500 the record is not empty, although it
    /// changes nothing.
    bool IsEmpty() const override;

    float GetOriginalTemperature() const { return m_originalTemperature; }
    void SetOriginalTemperature(float value) { m_originalTemperature = value; }

    float GetIntendedTemperature() const { return m_intendedTemperature; }
    void SetIntendedTemperature(float value) { m_intendedTemperature = value; }

    float GetIntensity() const { return m_intensity; }
    void SetIntensity(float value) { m_intensity = value; }

private:
    float m_originalTemperature = 6500.0f;
    float m_intendedTemperature = 6500.0f;
    float m_intensity = 1.0f;
};

} // namespace Ombrel::Proc

#endif
