#include "Proc/EffectSettings/FaceThinningSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectFaceThinning, FaceThinningSettings>;

FaceThinningSettings::~FaceThinningSettings() = default;

} // namespace Ombrel::PhotoCore
