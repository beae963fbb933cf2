#include "Proc/EffectSettings/DeepSuperResolutorSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectDeepSuperResolutor, DeepSuperResolutorSettings>;

const std::string& DeepSuperResolutorSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
