#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_COLOR_REDUCE_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_COLOR_REDUCE_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectColorReduce : public ComparedRecord<SettingsEffectColorReduce>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_COLOR_REDUCE";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    enum class ReducedColor : std::int32_t
    {
        Red = 0,
        Green = 1,
        Blue = 2,
    };

    double m_threshold = 1.2;
    ReducedColor m_reducedColor = ReducedColor::Red;
};

} // namespace Ombrel::Proc

#endif
