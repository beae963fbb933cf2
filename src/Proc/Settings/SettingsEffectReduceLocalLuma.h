#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_REDUCE_LOCAL_LUMA_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_REDUCE_LOCAL_LUMA_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectReduceLocalLuma : public SettingsRecord<SettingsEffectReduceLocalLuma>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_REDUCE_LOCAL_LUMA";
    static const std::string CLASS_ID;

    explicit SettingsEffectReduceLocalLuma(std::int32_t x = 0, std::int32_t y = 0, std::int32_t width = 0,
                                           std::int32_t height = 0, double strength = 1.0)
        : m_x(x), m_y(y), m_width(width), m_height(height), m_strength(strength)
    {
    }

    /// True if `m_strength` is 0.
    bool IsEmpty() const override;

    bool operator==(const SettingsEffectReduceLocalLuma& other) const;

    std::int32_t m_x;
    std::int32_t m_y;
    std::int32_t m_width;
    std::int32_t m_height;
    double m_strength;
};

} // namespace Ombrel::Proc

#endif
