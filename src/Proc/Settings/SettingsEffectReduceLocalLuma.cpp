#include "Proc/Settings/SettingsEffectReduceLocalLuma.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectReduceLocalLuma::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectReduceLocalLuma::GetClassId() const
{
    return ClassIdOf<SettingsEffectReduceLocalLuma>();
}

const RecordSchema& SettingsEffectReduceLocalLuma::Schema() noexcept
{
    using R = SettingsEffectReduceLocalLuma;
    return Describe<R, FieldList<FieldDescriptor<&R::m_x>, FieldDescriptor<&R::m_y>, FieldDescriptor<&R::m_width>,
                                 FieldDescriptor<&R::m_height>, FieldDescriptor<&R::m_strength>>>();
}

bool SettingsEffectReduceLocalLuma::IsEmpty() const
{
    return m_strength == 0.0;
}

} // namespace Ombrel::Proc
