#include "Proc/Settings/SettingsEffectDeepLumaUpscaler.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectDeepLumaUpscaler::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectDeepLumaUpscaler::GetClassId() const
{
    return ClassIdOf<SettingsEffectDeepLumaUpscaler>();
}

const RecordSchema& SettingsEffectDeepLumaUpscaler::Schema() noexcept
{
    return Describe<SettingsEffectDeepLumaUpscaler, FieldList<>>();
}

} // namespace Ombrel::Proc
