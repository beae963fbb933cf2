#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_DEEP_RESTORER_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_DEEP_RESTORER_H

#include "Proc/Settings/BaseSettingsNeural.h"
#include "Proc/Settings/SettingsRecord.h"

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectDeepRestorer : public SettingsRecord<SettingsEffectDeepRestorer, BaseSettingsNeural>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_DEEP_RESTORER";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::Proc

#endif
