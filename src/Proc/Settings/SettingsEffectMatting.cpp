#include "Proc/Settings/SettingsEffectMatting.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectMatting::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectMatting::GetClassId() const
{
    return ClassIdOf<SettingsEffectMatting>();
}

const RecordSchema& SettingsEffectMatting::Schema() noexcept
{
    return Describe<SettingsEffectMatting, FieldList<>>();
}

bool SettingsEffectMatting::operator==(const SettingsEffectMatting&) const
{
    return true;
}

} // namespace Ombrel::Proc
