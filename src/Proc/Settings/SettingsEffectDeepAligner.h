#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_DEEP_ALIGNER_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_DEEP_ALIGNER_H

#include "Proc/Settings/BaseSettingsNeural.h"
#include "Proc/Settings/SettingsRecord.h"

namespace Ombrel::Proc
{

/// Two records that differ in these values alone are equal: the comparison is that of the base.
class OMBREL_API SettingsEffectDeepAligner : public SettingsRecord<SettingsEffectDeepAligner, BaseSettingsNeural>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_DEEP_ALIGNER";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    double m_angle = 0.0;
    bool m_horizonDetected = false;
};

} // namespace Ombrel::Proc

#endif
