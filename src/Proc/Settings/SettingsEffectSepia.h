#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_SEPIA_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_SEPIA_H

#include "Proc/Settings/SettingsRecord.h"

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectSepia : public ComparedRecord<SettingsEffectSepia>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_SEPIA";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if `m_threshold` is exactly 0.
    bool IsEmpty() const override;

    double m_threshold = 0.0;
};

} // namespace Ombrel::Proc

#endif
