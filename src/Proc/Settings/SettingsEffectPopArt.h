#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_POP_ART_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_POP_ART_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

/// The picture in few strong colours, repeated in rows and columns. It starts as one picture at intensity 0, which leaves it
/// alone. Every value is stored as given.
class OMBREL_API SettingsEffectPopArt : public ComparedRecord<SettingsEffectPopArt>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_POP_ART";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    enum class DisproportionPolicy : std::int32_t
    {
        Shrink = 0,
        Expand = 1,
    };

    /// True if every value has its default.
    bool IsEmpty() const override;

    double GetSaturation() const { return m_saturation; }
    void SetSaturation(double value) { m_saturation = value; }

    double GetHue() const { return m_hue; }
    void SetHue(double value) { m_hue = value; }

    double GetOffset() const { return m_offset; }
    void SetOffset(double value) { m_offset = value; }

    double GetScale() const { return m_scale; }
    void SetScale(double value) { m_scale = value; }

    std::int32_t GetLevels() const { return m_levels; }
    void SetLevels(std::int32_t value) { m_levels = value; }

    std::int32_t GetAmountVertical() const { return m_amountVertical; }
    void SetAmountVertical(std::int32_t value) { m_amountVertical = value; }

    std::int32_t GetAmountHorizontal() const { return m_amountHorizontal; }
    void SetAmountHorizontal(std::int32_t value) { m_amountHorizontal = value; }

    bool GetInvertScale() const { return m_invertScale; }
    void SetInvertScale(bool value) { m_invertScale = value; }

    float GetIntensity() const { return m_intensity; }
    void SetIntensity(float value) { m_intensity = value; }

    DisproportionPolicy GetDisproportionPolicy() const { return m_disproportionPolicy; }
    void SetDisproportionPolicy(DisproportionPolicy value) { m_disproportionPolicy = value; }

private:
    double m_saturation = 0.0;
    double m_hue = 0.0;
    double m_offset = 0.0;
    double m_scale = 1.0;
    std::int32_t m_levels = 0;
    std::int32_t m_amountVertical = 1;
    std::int32_t m_amountHorizontal = 1;
    bool m_invertScale = false;
    float m_intensity = 0.0f;
    DisproportionPolicy m_disproportionPolicy = DisproportionPolicy::Shrink;
};

} // namespace Ombrel::Proc

#endif
