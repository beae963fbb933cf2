#include "Proc/EffectSettings/FishEyeSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& FishEyeSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
