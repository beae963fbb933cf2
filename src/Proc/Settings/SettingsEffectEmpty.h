#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_EMPTY_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_EMPTY_H

#include "Proc/Settings/SettingsRecord.h"

#include <string>

namespace Ombrel::Proc
{

/// An effect that does nothing.
class OMBREL_API SettingsEffectEmpty : public ComparedRecord<SettingsEffectEmpty>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_EMPTY";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    std::string m_value;
};

} // namespace Ombrel::Proc

#endif
