#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_AUTO_GLARE_REMOVE_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_AUTO_GLARE_REMOVE_H

#include "Proc/Settings/Face.h"
#include "Proc/Settings/SettingsRecord.h"

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectAutoGlareRemove : public ComparedRecord<SettingsEffectAutoGlareRemove>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_AUTO_GLARE_REMOVE";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if the face is empty.
    bool IsEmpty() const override;

    Face m_face;
};

} // namespace Ombrel::Proc

#endif
