#include "Proc/Settings/SettingsEffectTintTemperature.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectTintTemperature::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectTintTemperature::GetClassId() const
{
    return ClassIdOf<SettingsEffectTintTemperature>();
}

const RecordSchema& SettingsEffectTintTemperature::Schema() noexcept
{
    using R = SettingsEffectTintTemperature;
    return Describe<R, FieldList<FieldDescriptor<&R::m_tint>, FieldDescriptor<&R::m_temperature>>>();
}

bool SettingsEffectTintTemperature::IsEmpty() const
{
    return m_tint == 0 && m_temperature == 0;
}

} // namespace Ombrel::Proc
