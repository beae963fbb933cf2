#include "Proc/Settings/SettingsEffectDeepDenoiser.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectDeepDenoiser::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectDeepDenoiser::GetClassId() const
{
    return ClassIdOf<SettingsEffectDeepDenoiser>();
}

const RecordSchema& SettingsEffectDeepDenoiser::Schema() noexcept
{
    return Describe<SettingsEffectDeepDenoiser, FieldList<>>();
}

} // namespace Ombrel::Proc
