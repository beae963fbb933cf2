#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_DEEP_AUTO_RETOUCHER_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_DEEP_AUTO_RETOUCHER_H

#include "Proc/Settings/BaseSettingsNeural.h"
#include "Proc/Settings/Face.h"
#include "Proc/Settings/SettingsRecord.h"

#include <vector>

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectDeepAutoRetoucher : public SettingsRecord<SettingsEffectDeepAutoRetoucher, BaseSettingsNeural>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_DEEP_AUTO_RETOUCHER";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    std::vector<Face> faces; // copied with the record, neither stored nor compared
};

} // namespace Ombrel::Proc

#endif
