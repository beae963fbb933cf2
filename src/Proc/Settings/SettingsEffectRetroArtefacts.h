#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_RETRO_ARTEFACTS_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_RETRO_ARTEFACTS_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

/// The flaws of old film. Its three amounts are shown and stored in a tree as the number that was set times the intensity, and
/// reading does not undo this: unless the intensity is 1, a stored effect that is read and stored again has other amounts each
/// time.
class OMBREL_API SettingsEffectRetroArtefacts : public SettingsRecord<SettingsEffectRetroArtefacts>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_RETRO_ARTEFACTS";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if both switches are off, the amounts were set to 0 and the intensity is 1, as by default. At intensity 0 the
    /// record is not empty, although the amounts it shows are 0.
    bool IsEmpty() const override;

    bool GetShake() const { return m_shake; }
    void SetShake(bool value) { m_shake = value; }

    bool GetVignetting() const { return m_vignetting; }
    void SetVignetting(bool value) { m_vignetting = value; }

    // Each amount is shown as the number that was set times the intensity in 32-bit floating point, cut towards zero. A product
    // that does not fit is the nearest limit of the type, and 0 if it is a NaN. An amount beyond 24 bits is rounded even at
    // intensity 1. The setters store `value` as it is.
    std::uint32_t GetGrain() const;
    void SetGrain(std::uint32_t value) { m_grain = value; }

    std::uint32_t GetScratches() const;
    void SetScratches(std::uint32_t value) { m_scratches = value; }

    std::uint32_t GetRollerTrack() const;
    void SetRollerTrack(std::uint32_t value) { m_rollerTrack = value; }

    float GetIntensity() const { return m_intensity; }
    void SetIntensity(float value) { m_intensity = value; }

    /// Compares the amounts that were set, whatever is left of them at the intensity.
    bool operator==(const SettingsEffectRetroArtefacts& other) const;

private:
    bool m_shake = false;
    bool m_vignetting = false;
    std::uint32_t m_grain = 0;
    std::uint32_t m_scratches = 0;
    std::uint32_t m_rollerTrack = 0;
    float m_intensity = 1.0f;
};

} // namespace Ombrel::Proc

#endif
