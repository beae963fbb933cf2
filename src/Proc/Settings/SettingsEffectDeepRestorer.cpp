#include "Proc/Settings/SettingsEffectDeepRestorer.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectDeepRestorer::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectDeepRestorer::GetClassId() const
{
    return ClassIdOf<SettingsEffectDeepRestorer>();
}

const RecordSchema& SettingsEffectDeepRestorer::Schema() noexcept
{
    return Describe<SettingsEffectDeepRestorer, FieldList<>>();
}

} // namespace Ombrel::Proc
