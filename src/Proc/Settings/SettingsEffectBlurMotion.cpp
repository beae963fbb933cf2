#include "Proc/Settings/SettingsEffectBlurMotion.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectBlurMotion::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectBlurMotion::GetClassId() const
{
    return ClassIdOf<SettingsEffectBlurMotion>();
}

const RecordSchema& SettingsEffectBlurMotion::Schema() noexcept
{
    using R = SettingsEffectBlurMotion;
    return Describe<R, FieldList<FieldDescriptor<&R::m_radius>, FieldDescriptor<&R::m_sigma>, FieldDescriptor<&R::m_angle>>>();
}

bool SettingsEffectBlurMotion::IsEmpty() const
{
    return m_radius == 0;
}

} // namespace Ombrel::Proc
