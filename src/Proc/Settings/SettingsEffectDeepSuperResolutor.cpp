#include "Proc/Settings/SettingsEffectDeepSuperResolutor.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectDeepSuperResolutor::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectDeepSuperResolutor::GetClassId() const
{
    return ClassIdOf<SettingsEffectDeepSuperResolutor>();
}

const RecordSchema& SettingsEffectDeepSuperResolutor::Schema() noexcept
{
    return Describe<SettingsEffectDeepSuperResolutor, FieldList<>>();
}

} // namespace Ombrel::Proc
