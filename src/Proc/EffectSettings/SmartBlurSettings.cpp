#include "Proc/EffectSettings/SmartBlurSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& SmartBlurSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

bool SmartBlurSettings::IsEmpty() const
{
    return settings.IsEmpty();
}

} // namespace Ombrel::PhotoCore
