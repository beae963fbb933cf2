#include "Proc/Settings/SettingsEffectAutoEnhance.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectAutoEnhance::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectAutoEnhance::GetClassId() const
{
    return ClassIdOf<SettingsEffectAutoEnhance>();
}

const RecordSchema& SettingsEffectAutoEnhance::Schema() noexcept
{
    using R = SettingsEffectAutoEnhance;
    return Describe<R, FieldList<FieldDescriptor<&R::m_intensity>>>();
}

} // namespace Ombrel::Proc
