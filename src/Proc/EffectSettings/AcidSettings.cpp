#include "Proc/EffectSettings/AcidSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectAcid, AcidSettings>;

AcidSettings::~AcidSettings() = default;

} // namespace Ombrel::PhotoCore
