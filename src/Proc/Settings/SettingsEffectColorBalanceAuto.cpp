#include "Proc/Settings/SettingsEffectColorBalanceAuto.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectColorBalanceAuto::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectColorBalanceAuto::GetClassId() const
{
    return ClassIdOf<SettingsEffectColorBalanceAuto>();
}

const RecordSchema& SettingsEffectColorBalanceAuto::Schema() noexcept
{
    using R = SettingsEffectColorBalanceAuto;
    return Describe<R, FieldList<FieldDescriptor<&R::m_whiteBalance>, FieldDescriptor<&R::m_lightBalance>,
                                 FieldDescriptor<&R::m_exposure>>>();
}

bool SettingsEffectColorBalanceAuto::IsEmpty() const
{
    return !m_whiteBalance && !m_lightBalance && m_exposure == 0;
}

} // namespace Ombrel::Proc
