#include "Proc/Settings/SettingsEffectSepia.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectSepia::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectSepia::GetClassId() const
{
    return ClassIdOf<SettingsEffectSepia>();
}

const RecordSchema& SettingsEffectSepia::Schema() noexcept
{
    using R = SettingsEffectSepia;
    return Describe<R, FieldList<FieldDescriptor<&R::m_threshold>>>();
}

bool SettingsEffectSepia::IsEmpty() const
{
    return m_threshold == 0.0;
}

} // namespace Ombrel::Proc
