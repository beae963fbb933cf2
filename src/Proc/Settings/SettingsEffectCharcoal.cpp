#include "Proc/Settings/SettingsEffectCharcoal.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectCharcoal::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectCharcoal::GetClassId() const
{
    return ClassIdOf<SettingsEffectCharcoal>();
}

const RecordSchema& SettingsEffectCharcoal::Schema() noexcept
{
    using R = SettingsEffectCharcoal;
    return Describe<R, FieldList<FieldDescriptor<&R::m_radius>, FieldDescriptor<&R::m_sigma>>>();
}

bool SettingsEffectCharcoal::IsEmpty() const
{
    return m_radius == 0;
}

} // namespace Ombrel::Proc
