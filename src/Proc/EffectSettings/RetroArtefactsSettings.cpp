#include "Proc/EffectSettings/RetroArtefactsSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectRetroArtefacts, RetroArtefactsSettings>;

RetroArtefactsSettings::~RetroArtefactsSettings() = default;

} // namespace Ombrel::PhotoCore
