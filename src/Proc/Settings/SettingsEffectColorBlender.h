#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_COLOR_BLENDER_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_COLOR_BLENDER_H

#include "Proc/Settings/Settings.h"

#include <cstdint>

namespace Ombrel::Proc
{

/// Where something is laid on a picture, and how strongly. A base for records; every value is stored as given.
class OMBREL_API SettingsEffectColorBlender : public Settings
{
public:
    /// How it is laid on the picture. Stored by name.
    enum class BlendingMode : std::int32_t
    {
        Default = 0,
        KeepDstAlpha = 26,
    };

    SettingsEffectColorBlender(const SettingsEffectColorBlender&);
    SettingsEffectColorBlender(SettingsEffectColorBlender&&) noexcept;
    SettingsEffectColorBlender& operator=(const SettingsEffectColorBlender&);
    SettingsEffectColorBlender& operator=(SettingsEffectColorBlender&&) noexcept;
    ~SettingsEffectColorBlender() override;

    /// Pixels from the left edge of the picture.
    std::int32_t GetPositionX() const { return m_positionX; }
    void SetPositionX(std::int32_t value) { m_positionX = value; }

    /// Pixels from its upper edge.
    std::int32_t GetPositionY() const { return m_positionY; }
    void SetPositionY(std::int32_t value) { m_positionY = value; }

    /// 0 leaves the picture as it is, 1 covers it.
    float GetIntensity() const { return m_intensity; }
    void SetIntensity(float value) { m_intensity = value; }

    /// The intensity on the scale of 0 to 255: rounded, and held within it whatever the intensity is; NaN is 0. So an intensity
    /// of n / 255 answers n.
    std::int32_t GetAlpha() const;

    /// `Default` unless `SetBlendingMode` was called.
    BlendingMode GetBlendingMode() const { return m_blendingMode; }

    /// The only way to set the mode: a stored one sets the intensity.
    void SetBlendingMode(BlendingMode value) { m_blendingMode = value; }

    /// Compares position, intensity and mode.
    bool operator==(const SettingsEffectColorBlender& other) const;

protected:
    SettingsEffectColorBlender();

private:
    std::int32_t m_positionX = 0;
    std::int32_t m_positionY = 0;
    float m_intensity = 0.0f;
    BlendingMode m_blendingMode = BlendingMode::Default;
};

} // namespace Ombrel::Proc

#endif
