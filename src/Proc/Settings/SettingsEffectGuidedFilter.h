#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_GUIDED_FILTER_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_GUIDED_FILTER_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectGuidedFilter : public SettingsRecord<SettingsEffectGuidedFilter>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_GUIDED_FILTER";
    static const std::string CLASS_ID;

    explicit SettingsEffectGuidedFilter(std::int32_t radius = 10, std::int32_t depth = -1, double eps = 1e-05);

    /// True if one of the three values is 0.
    bool IsEmpty() const override;

    bool operator==(const SettingsEffectGuidedFilter& other) const;

    std::int32_t m_radius;
    std::int32_t m_depth;
    double m_eps;
};

} // namespace Ombrel::Proc

#endif
