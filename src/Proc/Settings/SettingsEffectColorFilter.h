#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_COLOR_FILTER_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_COLOR_FILTER_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

/// A filter by preset. Any preset colours a picture, so that the intensity is what starts at 0. Every value is stored as
/// given.
class OMBREL_API SettingsEffectColorFilter : public ComparedRecord<SettingsEffectColorFilter>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_COLOR_FILTER";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    enum class Preset : std::int32_t
    {
        enPraset01 = 0,
        enPraset02 = 1,
        enPraset03 = 2,
        enPraset04 = 3,
        enPraset05 = 4,
        enPraset06 = 5,
        enPraset07 = 6,
        enPraset08 = 7,
        enPraset09 = 8,
        enPraset10 = 9,
        enPraset11 = 10,
        enPraset12 = 11,
        enPraset13 = 12,
        enPraset14 = 13,
        enPraset15 = 14,
        enPraset16 = 15,
        enPraset17 = 16,
        enPraset18 = 17,
        enPraset19 = 18,
        enPraset20 = 19,
        enPraset21 = 20,
        enPraset22 = 21,
        enPraset23 = 22,
        enPraset24 = 23,
        enPraset25 = 24,
        enPraset26 = 25,
        enPraset27 = 26,
        enPraset28 = 27,
        enPraset29 = 28,
        enPraset30 = 29,
        enPraset31 = 30,
        enPraset32 = 31,
        enPraset33 = 32,
        enPraset34 = 33,
        enPraset35 = 34,
        enPraset36 = 35,
        enPrasetMultiply = 36,
    };

    /// True if every value has its default.
    bool IsEmpty() const override;

    Preset GetPreset() const { return m_preset; }
    void SetPreset(Preset value) { m_preset = value; }

    std::int32_t GetFilterId() const { return m_filterId; }
    void SetFilterId(std::int32_t value) { m_filterId = value; }

    float GetRFactor() const { return m_rFactor; }
    void SetRFactor(float value) { m_rFactor = value; }

    float GetGFactor() const { return m_gFactor; }
    void SetGFactor(float value) { m_gFactor = value; }

    float GetBFactor() const { return m_bFactor; }
    void SetBFactor(float value) { m_bFactor = value; }

    float GetColorFactor() const { return m_colorFactor; }
    void SetColorFactor(float value) { m_colorFactor = value; }

    float GetIntensity() const { return m_intensity; }
    void SetIntensity(float value) { m_intensity = value; }

private:
    Preset m_preset = Preset::enPraset01;
    std::int32_t m_filterId = 0;
    float m_rFactor = 1.0f;
    float m_gFactor = 1.0f;
    float m_bFactor = 1.0f;
    float m_colorFactor = 1.0f;
    float m_intensity = 0.0f;
};

} // namespace Ombrel::Proc

#endif
