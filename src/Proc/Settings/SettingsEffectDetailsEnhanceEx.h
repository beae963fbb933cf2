#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_DETAILS_ENHANCE_EX_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_DETAILS_ENHANCE_EX_H

#include "Proc/Settings/SettingsRecord.h"

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectDetailsEnhanceEx : public ComparedRecord<SettingsEffectDetailsEnhanceEx>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_DETAILS_EX";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if `m_strength` is 0.
    bool IsEmpty() const override;

    double m_strength = 0.0; // not whole, unlike that of the plain details effect
};

} // namespace Ombrel::Proc

#endif
