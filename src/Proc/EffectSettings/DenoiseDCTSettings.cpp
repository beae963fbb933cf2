#include "Proc/EffectSettings/DenoiseDCTSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectDenoiseDCT, DenoiseDCTSettings>;

DenoiseDCTSettings::~DenoiseDCTSettings() = default;

} // namespace Ombrel::PhotoCore
