#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_DETAILS_ENHANCE_EX_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_DETAILS_ENHANCE_EX_H

#include "Proc/Settings/SettingsRecord.h"

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectDetailsEnhanceEx : public SettingsRecord<SettingsEffectDetailsEnhanceEx>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_DETAILS_EX";
    static const std::string CLASS_ID;

    /// True if `m_strength` is 0.
    bool IsEmpty() const override;

    bool operator==(const SettingsEffectDetailsEnhanceEx& other) const;

    double m_strength = 0.0; // not whole, unlike that of the plain details effect
};

} // namespace Ombrel::Proc

#endif
