#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_REDUCE_LOCAL_LUMA_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_REDUCE_LOCAL_LUMA_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectReduceLocalLuma : public ComparedRecord<SettingsEffectReduceLocalLuma>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_REDUCE_LOCAL_LUMA";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    SettingsEffectReduceLocalLuma() = default;

    /// All five values, without a check.
    SettingsEffectReduceLocalLuma(std::int32_t x, std::int32_t y, std::int32_t width, std::int32_t height, double strength)
        : m_x(x), m_y(y), m_width(width), m_height(height), m_strength(strength)
    {
    }

    /// True if `m_strength` is 0.
    bool IsEmpty() const override;

    std::int32_t m_x = 0;
    std::int32_t m_y = 0;
    std::int32_t m_width = 0;
    std::int32_t m_height = 0;
    double m_strength = 1.0;
};

} // namespace Ombrel::Proc

#endif
