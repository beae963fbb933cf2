#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_AUTO_ENHANCE_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_AUTO_ENHANCE_H

#include "Proc/Settings/SettingsRecord.h"

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectAutoEnhance : public SettingsRecord<SettingsEffectAutoEnhance>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_AUTO_ENHANCE";
    static const std::string CLASS_ID;

    ~SettingsEffectAutoEnhance() override;

    bool operator==(const SettingsEffectAutoEnhance& other) const;

    double m_intensity = 100.0;
};

} // namespace Ombrel::Proc

#endif
