#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_GUIDED_FILTER_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_GUIDED_FILTER_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectGuidedFilter : public ComparedRecord<SettingsEffectGuidedFilter>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_GUIDED_FILTER";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    SettingsEffectGuidedFilter() = default;

    /// All three values, without a check.
    SettingsEffectGuidedFilter(std::int32_t radius, std::int32_t depth, double eps);

    /// True if one of the three values is 0.
    bool IsEmpty() const override;

    std::int32_t m_radius = 10;
    std::int32_t m_depth = -1;
    double m_eps = 1e-05;
};

} // namespace Ombrel::Proc

#endif
