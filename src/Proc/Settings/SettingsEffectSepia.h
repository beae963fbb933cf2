#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_SEPIA_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_SEPIA_H

#include "Proc/Settings/SettingsRecord.h"

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectSepia : public SettingsRecord<SettingsEffectSepia>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_SEPIA";
    static const std::string CLASS_ID;

    /// True if `m_threshold` is exactly 0.
    bool IsEmpty() const override;

    bool operator==(const SettingsEffectSepia& other) const;

    double m_threshold = 0.0;
};

} // namespace Ombrel::Proc

#endif
