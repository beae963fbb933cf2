#include "Proc/Settings/SettingsEffectEyeExtending.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectEyeExtending::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectEyeExtending::GetClassId() const
{
    return ClassIdOf<SettingsEffectEyeExtending>();
}

const RecordSchema& SettingsEffectEyeExtending::Schema() noexcept
{
    using R = SettingsEffectEyeExtending;
    return Describe<R, FieldList<FieldDescriptor<&R::m_eyes>, FieldDescriptor<&R::m_strength>>>();
}

// Both eyes or none: unlike face thinning, the effect goes by its geometry.
bool SettingsEffectEyeExtending::IsEmpty() const
{
    return m_eyes.m_left.m_contour.m_contour.empty() || m_eyes.m_right.m_contour.m_contour.empty();
}

} // namespace Ombrel::Proc
