#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_FACE_DETECTION_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_FACE_DETECTION_H

#include "Proc/Settings/Face.h"
#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>
#include <vector>

namespace Ombrel::Proc
{

/// How faces are looked for, and those that were found. Nothing of it is stored: a saved effect comes back in its default
/// mode and without faces, and reading leaves the receiver's.
class OMBREL_API SettingsEffectFaceDetection : public SettingsRecord<SettingsEffectFaceDetection>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_FACE_DETECTION";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// Compares the mode alone: the faces are a result.
    bool operator==(const SettingsEffectFaceDetection& other) const;

    /// How faces are looked for, as a number of the program that does.
    std::int32_t m_detectionMode = 0;
    /// The faces that were found.
    std::vector<Face> m_faces;
};

} // namespace Ombrel::Proc

#endif
