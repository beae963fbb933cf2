#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_VIBRANCE_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_VIBRANCE_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectVibrance : public ComparedRecord<SettingsEffectVibrance>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_VIBRANCE";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if `m_strength` is 0.
    bool IsEmpty() const override;

    std::int32_t m_strength = 0;
};

} // namespace Ombrel::Proc

#endif
