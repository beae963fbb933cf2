#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_DETAILS_ENHANCE_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_DETAILS_ENHANCE_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectDetailsEnhance : public SettingsRecord<SettingsEffectDetailsEnhance>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_DETAILS";
    static const std::string CLASS_ID;

    /// True if `m_strength` is 0.
    bool IsEmpty() const override;

    bool operator==(const SettingsEffectDetailsEnhance& other) const;

    std::int32_t m_strength = 0;
};

} // namespace Ombrel::Proc

#endif
