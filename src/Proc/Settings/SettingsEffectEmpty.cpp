#include "Proc/Settings/SettingsEffectEmpty.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectEmpty::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectEmpty::GetClassId() const
{
    return ClassIdOf<SettingsEffectEmpty>();
}

const RecordSchema& SettingsEffectEmpty::Schema() noexcept
{
    using R = SettingsEffectEmpty;
    return Describe<R, FieldList<FieldDescriptor<&R::m_value>>>();
}

} // namespace Ombrel::Proc
