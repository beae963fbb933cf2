#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_FISH_EYE_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_FISH_EYE_H

#include "Proc/Settings/SettingsRecord.h"

namespace Ombrel::Proc
{

/// Fish-eye: a deviation that the intensity scales. What is stored is the factor between the two, so that a change of the
/// intensity changes the deviation as well.
class OMBREL_API SettingsEffectFishEye : public SettingsRecord<SettingsEffectFishEye>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_FISH_EYE";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if the factor is 0 and the intensity 1, as by default. At another intensity the record is not empty.
    bool IsEmpty() const override;

    /// The intensity times the factor.
    double GetDeviation() const { return static_cast<double>(m_intensity) * m_deviationFactor; }

    /// Sets the factor so that the deviation at the present intensity is `value`, but for rounding. Where no finite factor
    /// gives a finite `value`, that is at an intensity of 0, of an infinity or NaN, or too small for it, `value` itself becomes
    /// the factor: the deviation at intensity 1.
    void SetDeviation(double value);

    float GetIntensity() const { return m_intensity; }

    /// Leaves the factor alone.
    void SetIntensity(float value) { m_intensity = value; }

    /// Compares factor and intensity.
    bool operator==(const SettingsEffectFishEye& other) const;

private:
    double m_deviationFactor = 0.0;
    float m_intensity = 1.0f;
};

} // namespace Ombrel::Proc

#endif
