#include "Proc/EffectSettings/BlendSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectImageBlender, BlendSettings>;

const std::string& BlendSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
