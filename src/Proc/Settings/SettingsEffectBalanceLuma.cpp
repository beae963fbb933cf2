#include "Proc/Settings/SettingsEffectBalanceLuma.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectBalanceLuma::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectBalanceLuma::GetClassId() const
{
    return ClassIdOf<SettingsEffectBalanceLuma>();
}

const RecordSchema& SettingsEffectBalanceLuma::Schema() noexcept
{
    using R = SettingsEffectBalanceLuma;
    return Describe<R, FieldList<FieldDescriptor<&R::m_shadows>, FieldDescriptor<&R::m_highlights>,
                                 FieldDescriptor<&R::m_exposure>, FieldDescriptor<&R::m_autoContrast>>>();
}

bool SettingsEffectBalanceLuma::IsEmpty() const
{
    return m_shadows == 0 && m_highlights == 0 && m_exposure == 0 && !m_autoContrast;
}

} // namespace Ombrel::Proc
