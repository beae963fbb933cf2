#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_MATTING_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_MATTING_H

#include "Proc/Settings/SettingsRecord.h"

namespace Ombrel::Proc
{

/// An effect without parameters.
class OMBREL_API SettingsEffectMatting : public SettingsRecord<SettingsEffectMatting>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_MATTING";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// Always true.
    bool operator==(const SettingsEffectMatting& other) const;
};

} // namespace Ombrel::Proc

#endif
