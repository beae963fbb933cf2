#include "Proc/EffectSettings/RemoveBackgroundSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectRemoveBackground, RemoveBackgroundSettings>;

const std::string& RemoveBackgroundSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
