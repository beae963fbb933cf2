#include "Proc/EffectSettings/DetailsEnhanceSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& DetailsEnhanceSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

bool DetailsEnhanceSettings::IsEmpty() const
{
    return settings.IsEmpty();
}

} // namespace Ombrel::PhotoCore
