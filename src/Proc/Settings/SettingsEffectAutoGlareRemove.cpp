#include "Proc/Settings/SettingsEffectAutoGlareRemove.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectAutoGlareRemove::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectAutoGlareRemove::GetClassId() const
{
    return ClassIdOf<SettingsEffectAutoGlareRemove>();
}

const RecordSchema& SettingsEffectAutoGlareRemove::Schema() noexcept
{
    using R = SettingsEffectAutoGlareRemove;
    return Describe<R, FieldList<FieldDescriptor<&R::m_face>>>();
}

bool SettingsEffectAutoGlareRemove::IsEmpty() const
{
    return m_face.IsEmpty();
}

} // namespace Ombrel::Proc
