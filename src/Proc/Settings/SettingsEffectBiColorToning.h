#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_BI_COLOR_TONING_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_BI_COLOR_TONING_H

#include "Proc/Settings/RgbaColor.h"
#include "Proc/Settings/SettingsRecord.h"

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectBiColorToning : public SettingsRecord<SettingsEffectBiColorToning>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_BI_COLOR_TONING";
    static const std::string CLASS_ID;

    ~SettingsEffectBiColorToning() override;

    bool operator==(const SettingsEffectBiColorToning& other) const;

    RgbaColor m_colorFirst;
    RgbaColor m_colorSecond{255, 255, 255, 255};
};

} // namespace Ombrel::Proc

#endif
