#include "Proc/Settings/SettingsEffectAcid.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectAcid::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectAcid::GetClassId() const
{
    return ClassIdOf<SettingsEffectAcid>();
}

const RecordSchema& SettingsEffectAcid::Schema() noexcept
{
    using R = SettingsEffectAcid;
    return Describe<R, FieldList<FieldDescriptor<&R::radius>, FieldDescriptor<&R::sigma>>>();
}

bool SettingsEffectAcid::IsEmpty() const
{
    return radius == 0;
}

} // namespace Ombrel::Proc
