#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_EYE_EXTENDING_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_EYE_EXTENDING_H

#include "Proc/Settings/Face.h"
#include "Proc/Settings/SettingsRecord.h"

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectEyeExtending : public ComparedRecord<SettingsEffectEyeExtending>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_EYE_EXTENDING";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if one of the eyes has no contour, whatever the strength.
    bool IsEmpty() const override;

    Eyes m_eyes;
    double m_strength = 0.0;
};

} // namespace Ombrel::Proc

#endif
