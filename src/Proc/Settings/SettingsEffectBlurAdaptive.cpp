#include "Proc/Settings/SettingsEffectBlurAdaptive.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectBlurAdaptive::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectBlurAdaptive::GetClassId() const
{
    return ClassIdOf<SettingsEffectBlurAdaptive>();
}

const RecordSchema& SettingsEffectBlurAdaptive::Schema() noexcept
{
    using R = SettingsEffectBlurAdaptive;
    return Describe<R, FieldList<FieldDescriptor<&R::m_radius>, FieldDescriptor<&R::m_sigma>>>();
}

bool SettingsEffectBlurAdaptive::IsEmpty() const
{
    return m_radius == 0.0 || m_sigma == 0.0;
}

} // namespace Ombrel::Proc
