#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_DEEP_ADJUSTER_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_DEEP_ADJUSTER_H

#include "Proc/Settings/BaseSettingsNeural.h"
#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

/// Two records that differ in these controls alone are equal: the comparison is that of the base.
class OMBREL_API SettingsEffectDeepAdjuster : public SettingsRecord<SettingsEffectDeepAdjuster, BaseSettingsNeural>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_DEEP_ADJUSTER";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    std::int32_t m_brightness = 0;
    std::int32_t m_contrast = 0;
    std::int32_t m_vibrance = 0;
    std::int32_t m_exposure = 0;
    std::int32_t m_shadows = 0;
    std::int32_t m_hightlights = 0; // as stored
};

} // namespace Ombrel::Proc

#endif
