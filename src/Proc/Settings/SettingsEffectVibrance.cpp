#include "Proc/Settings/SettingsEffectVibrance.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectVibrance::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectVibrance::GetClassId() const
{
    return ClassIdOf<SettingsEffectVibrance>();
}

const RecordSchema& SettingsEffectVibrance::Schema() noexcept
{
    using R = SettingsEffectVibrance;
    return Describe<R, FieldList<FieldDescriptor<&R::m_strength>>>();
}

bool SettingsEffectVibrance::IsEmpty() const
{
    return m_strength == 0;
}

} // namespace Ombrel::Proc
