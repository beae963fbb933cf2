#include "Proc/Settings/SettingsEffectFaceDetection.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectFaceDetection::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectFaceDetection::GetClassId() const
{
    return ClassIdOf<SettingsEffectFaceDetection>();
}

// Without keys: what detection found belongs to one image and one run.
const RecordSchema& SettingsEffectFaceDetection::Schema() noexcept
{
    return Describe<SettingsEffectFaceDetection, FieldList<>>();
}

bool SettingsEffectFaceDetection::operator==(const SettingsEffectFaceDetection& other) const
{
    return m_detectionMode == other.m_detectionMode;
}

} // namespace Ombrel::Proc
