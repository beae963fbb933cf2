#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_COLOR_REDUCE_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_COLOR_REDUCE_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectColorReduce : public SettingsRecord<SettingsEffectColorReduce>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_COLOR_REDUCE";
    static const std::string CLASS_ID;

    enum class ReducedColor : std::int32_t
    {
        Red = 0,
        Green = 1,
        Blue = 2,
    };

    ~SettingsEffectColorReduce() override;

    bool operator==(const SettingsEffectColorReduce& other) const;

    double m_threshold = 1.2;
    ReducedColor m_reducedColor = ReducedColor::Red;
};

} // namespace Ombrel::Proc

#endif
