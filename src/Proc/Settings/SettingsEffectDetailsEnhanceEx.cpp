#include "Proc/Settings/SettingsEffectDetailsEnhanceEx.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectDetailsEnhanceEx::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectDetailsEnhanceEx::GetClassId() const
{
    return ClassIdOf<SettingsEffectDetailsEnhanceEx>();
}

const RecordSchema& SettingsEffectDetailsEnhanceEx::Schema() noexcept
{
    using R = SettingsEffectDetailsEnhanceEx;
    return Describe<R, FieldList<FieldDescriptor<&R::m_strength>>>();
}

bool SettingsEffectDetailsEnhanceEx::IsEmpty() const
{
    return m_strength == 0.0;
}

} // namespace Ombrel::Proc
