#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_COLORED_GLASS_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_COLORED_GLASS_H

#include "Proc/Settings/RgbaColor.h"
#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectColoredGlass : public ComparedRecord<SettingsEffectColoredGlass>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_COLORED_GLASS";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if `m_alpha` is 0.
    bool IsEmpty() const override;

    RgbaColor m_color;
    std::int32_t m_alpha = 0;
};

} // namespace Ombrel::Proc

#endif
