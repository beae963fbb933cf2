#include "Proc/Settings/SettingsEffectDetailsEnhance.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectDetailsEnhance::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectDetailsEnhance::GetClassId() const
{
    return ClassIdOf<SettingsEffectDetailsEnhance>();
}

const RecordSchema& SettingsEffectDetailsEnhance::Schema() noexcept
{
    using R = SettingsEffectDetailsEnhance;
    return Describe<R, FieldList<FieldDescriptor<&R::m_strength>>>();
}

bool SettingsEffectDetailsEnhance::IsEmpty() const
{
    return m_strength == 0;
}

} // namespace Ombrel::Proc
