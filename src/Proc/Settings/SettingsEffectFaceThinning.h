#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_FACE_THINNING_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_FACE_THINNING_H

#include "Proc/Settings/Face.h"
#include "Proc/Settings/SettingsRecord.h"

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectFaceThinning : public ComparedRecord<SettingsEffectFaceThinning>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_FACE_THINNING";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if `m_strength` is 0, whatever the outline.
    bool IsEmpty() const override;

    FaceContour m_faceOutline;
    double m_strength = 0.0;
};

} // namespace Ombrel::Proc

#endif
