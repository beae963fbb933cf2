#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_BLUR_ADAPTIVE_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_BLUR_ADAPTIVE_H

#include "Proc/Settings/SettingsRecord.h"

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectBlurAdaptive : public ComparedRecord<SettingsEffectBlurAdaptive>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_BLUR_ADAPTIVE";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if `m_radius` or `m_sigma` is 0.
    bool IsEmpty() const override;

    double m_radius = 3.0;
    double m_sigma = 1.0;
};

} // namespace Ombrel::Proc

#endif
