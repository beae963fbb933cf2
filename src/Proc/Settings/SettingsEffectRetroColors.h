#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_RETRO_COLORS_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_RETRO_COLORS_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

/// Colours of old pictures. Any type changes a picture, so that the intensity is what starts at 0. Every value is stored as
/// given.
class OMBREL_API SettingsEffectRetroColors : public ComparedRecord<SettingsEffectRetroColors>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_RETRO_COLORS";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    enum class RetroType : std::int32_t
    {
        enRetro = 0,
        en70s = 1,
        enGrayscale = 2,
        enSepia = 3,
    };

    /// True if every value has its default.
    bool IsEmpty() const override;

    RetroType GetType() const { return m_type; }
    void SetType(RetroType value) { m_type = value; }

    float GetIntensity() const { return m_intensity; }
    void SetIntensity(float value) { m_intensity = value; }

private:
    RetroType m_type = RetroType::enRetro;
    float m_intensity = 0.0f;
};

} // namespace Ombrel::Proc

#endif
