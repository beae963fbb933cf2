#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_AUTO_ENHANCE_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_AUTO_ENHANCE_H

#include "Proc/Settings/SettingsRecord.h"

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectAutoEnhance : public ComparedRecord<SettingsEffectAutoEnhance>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_AUTO_ENHANCE";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    double m_intensity = 100.0;
};

} // namespace Ombrel::Proc

#endif
