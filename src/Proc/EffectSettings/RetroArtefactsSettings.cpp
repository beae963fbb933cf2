#include "Proc/EffectSettings/RetroArtefactsSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectRetroArtefacts, RetroArtefactsSettings>;

const std::string& RetroArtefactsSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
