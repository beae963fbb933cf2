#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_DEEP_COLORIZER_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_DEEP_COLORIZER_H

#include "Proc/Settings/BaseSettingsNeural.h"
#include "Proc/Settings/SettingsRecord.h"

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectDeepColorizer : public SettingsRecord<SettingsEffectDeepColorizer, BaseSettingsNeural>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_DEEP_COLORIZER";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// `neuralMode` starts at 1, unlike in the base.
    SettingsEffectDeepColorizer();
};

} // namespace Ombrel::Proc

#endif
