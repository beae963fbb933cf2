#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_TINT_TEMPERATURE_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_TINT_TEMPERATURE_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectTintTemperature : public ComparedRecord<SettingsEffectTintTemperature>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_TINT_TEMPERATURE";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if both values are 0.
    bool IsEmpty() const override;

    std::int32_t m_tint = 0;
    std::int32_t m_temperature = 0;
};

} // namespace Ombrel::Proc

#endif
