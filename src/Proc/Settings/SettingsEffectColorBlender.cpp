#include "Proc/Settings/SettingsEffectColorBlender.h"

#include <cmath>

namespace Ombrel::Proc
{

SettingsEffectColorBlender::SettingsEffectColorBlender() = default;
SettingsEffectColorBlender::SettingsEffectColorBlender(const SettingsEffectColorBlender&) = default;
SettingsEffectColorBlender::SettingsEffectColorBlender(SettingsEffectColorBlender&&) noexcept = default;
SettingsEffectColorBlender& SettingsEffectColorBlender::operator=(const SettingsEffectColorBlender&) = default;
SettingsEffectColorBlender& SettingsEffectColorBlender::operator=(SettingsEffectColorBlender&&) noexcept = default;
SettingsEffectColorBlender::~SettingsEffectColorBlender() = default;

std::int32_t SettingsEffectColorBlender::GetAlpha() const
{
    // Held within the scale before it becomes an integer: fmax answers its other argument for a NaN.
    const float alpha = std::fmin(std::fmax(m_intensity * 255.0f, 0.0f), 255.0f);
    return static_cast<std::int32_t>(std::round(alpha));
}

bool SettingsEffectColorBlender::operator==(const SettingsEffectColorBlender& other) const
{
    return m_positionX == other.m_positionX && m_positionY == other.m_positionY && m_intensity == other.m_intensity &&
           m_blendingMode == other.m_blendingMode;
}

} // namespace Ombrel::Proc
