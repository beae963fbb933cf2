#include "Proc/Settings/SettingsEffectFaceDetection.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectFaceDetection::CLASS_ID{CLASS_NAME};

// Without keys: what detection found belongs to one image and one run.
template <> struct Fields<SettingsEffectFaceDetection>
{
    using List = FieldList<>;
};

template struct Reflected<SettingsEffectFaceDetection>;

SettingsEffectFaceDetection::~SettingsEffectFaceDetection() = default;

bool SettingsEffectFaceDetection::operator==(const SettingsEffectFaceDetection& other) const
{
    return m_detectionMode == other.m_detectionMode;
}

} // namespace Ombrel::Proc
