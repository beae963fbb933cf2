#include "Proc/EffectSettings/NoiseVideoSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& NoiseVideoSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
