#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_POSTERIZE_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_POSTERIZE_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

/// Reduces the picture to a number of colours. Every value is stored as given; an intensity of 0 leaves the picture alone.
class OMBREL_API SettingsEffectPosterize : public ComparedRecord<SettingsEffectPosterize>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_POSTERIZE";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if the record is as by default.
    bool IsEmpty() const override;

    bool GetIsPal() const { return m_isPal; }
    void SetIsPal(bool value) { m_isPal = value; }

    std::int32_t GetSeed() const { return m_seed; }
    void SetSeed(std::int32_t value) { m_seed = value; }

    std::int32_t GetColorsNumber() const { return m_colorsNumber; }
    void SetColorsNumber(std::int32_t value) { m_colorsNumber = value; }

    float GetIntensity() const { return m_intensity; }
    void SetIntensity(float value) { m_intensity = value; }

private:
    // The number of colours comes first here and third among the stored keys.
    std::int32_t m_colorsNumber = 0;
    bool m_isPal = false;
    std::int32_t m_seed = 0;
    float m_intensity = 0.0f;
};

} // namespace Ombrel::Proc

#endif
