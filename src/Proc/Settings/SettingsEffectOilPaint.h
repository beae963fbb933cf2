#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_OIL_PAINT_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_OIL_PAINT_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

/// Oil painting. The radius that is shown and stored in a tree is the one that was set times the intensity, and reading does
/// not undo this: unless the intensity is 1, a stored effect that is read and stored again has another radius each time.
class OMBREL_API SettingsEffectOilPaint : public SettingsRecord<SettingsEffectOilPaint>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_OIL_PAINT";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if the radius was set to 0 and the intensity is 1, as by default. At intensity 0 the record is not empty, although
    /// the radius it shows is 0.
    bool IsEmpty() const override;

    /// The radius that was set times the intensity in 32-bit floating point, cut towards zero. A product that does not fit is
    /// the nearest limit of the type, and 0 if it is a NaN. A radius beyond 24 bits is rounded even at intensity 1.
    std::int32_t GetRadius() const;

    /// Stores `value` as it is.
    void SetRadius(std::int32_t value) { m_radius = value; }

    float GetIntensity() const { return m_intensity; }
    void SetIntensity(float value) { m_intensity = value; }

    /// Compares the radius that was set, whatever is left of it at the intensity.
    bool operator==(const SettingsEffectOilPaint& other) const;

private:
    std::int32_t m_radius = 0;
    float m_intensity = 1.0f;
};

} // namespace Ombrel::Proc

#endif
