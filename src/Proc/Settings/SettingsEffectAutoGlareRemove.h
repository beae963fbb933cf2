#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_AUTO_GLARE_REMOVE_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_AUTO_GLARE_REMOVE_H

#include "Proc/Settings/Face.h"
#include "Proc/Settings/SettingsRecord.h"

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectAutoGlareRemove : public SettingsRecord<SettingsEffectAutoGlareRemove>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_AUTO_GLARE_REMOVE";
    static const std::string CLASS_ID;

    /// True if the face is empty.
    bool IsEmpty() const override;

    bool operator==(const SettingsEffectAutoGlareRemove& other) const;

    Face m_face;
};

} // namespace Ombrel::Proc

#endif
