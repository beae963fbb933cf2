#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_EMPTY_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_EMPTY_H

#include "Proc/Settings/SettingsRecord.h"

#include <string>

namespace Ombrel::Proc
{

/// An effect that does nothing.
class OMBREL_API SettingsEffectEmpty : public SettingsRecord<SettingsEffectEmpty>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_EMPTY";
    static const std::string CLASS_ID;

    ~SettingsEffectEmpty() override;

    bool operator==(const SettingsEffectEmpty& other) const;

    std::string m_value;
};

} // namespace Ombrel::Proc

#endif
