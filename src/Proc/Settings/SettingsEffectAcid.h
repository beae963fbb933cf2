#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_ACID_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_ACID_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectAcid : public ComparedRecord<SettingsEffectAcid>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_ACID";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if `radius` is 0.
    bool IsEmpty() const override;

    std::int32_t radius = 0;
    double sigma = 0.5;
};

} // namespace Ombrel::Proc

#endif
