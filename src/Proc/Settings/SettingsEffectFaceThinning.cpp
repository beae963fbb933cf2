#include "Proc/Settings/SettingsEffectFaceThinning.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectFaceThinning::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectFaceThinning::GetClassId() const
{
    return ClassIdOf<SettingsEffectFaceThinning>();
}

const RecordSchema& SettingsEffectFaceThinning::Schema() noexcept
{
    using R = SettingsEffectFaceThinning;
    return Describe<R, FieldList<FieldDescriptor<&R::m_faceOutline>, FieldDescriptor<&R::m_strength>>>();
}

bool SettingsEffectFaceThinning::IsEmpty() const
{
    return m_strength == 0.0;
}

} // namespace Ombrel::Proc
