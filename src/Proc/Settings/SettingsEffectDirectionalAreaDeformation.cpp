#include "Proc/Settings/SettingsEffectDirectionalAreaDeformation.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectDirectionalAreaDeformation::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectDirectionalAreaDeformation::GetClassId() const
{
    return ClassIdOf<SettingsEffectDirectionalAreaDeformation>();
}

const RecordSchema& SettingsEffectDirectionalAreaDeformation::Schema() noexcept
{
    using R = SettingsEffectDirectionalAreaDeformation;
    return Describe<R, FieldList<FieldDescriptor<&R::m_strength>, FieldDescriptor<&R::m_fromX>, FieldDescriptor<&R::m_fromY>,
                                 FieldDescriptor<&R::m_toX>, FieldDescriptor<&R::m_toY>, FieldDescriptor<&R::m_size>>>();
}

bool SettingsEffectDirectionalAreaDeformation::IsEmpty() const
{
    return m_strength == 0.0;
}

} // namespace Ombrel::Proc
