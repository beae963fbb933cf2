#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_COLORED_GLASS_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_COLORED_GLASS_H

#include "Proc/Settings/RgbaColor.h"
#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectColoredGlass : public SettingsRecord<SettingsEffectColoredGlass>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_COLORED_GLASS";
    static const std::string CLASS_ID;

    /// True if `m_alpha` is 0.
    bool IsEmpty() const override;

    bool operator==(const SettingsEffectColoredGlass& other) const;

    RgbaColor m_color;
    std::int32_t m_alpha = 0;
};

} // namespace Ombrel::Proc

#endif
