#include "Proc/EffectSettings/ColorChannelMixerSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& ColorChannelMixerSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
