#include "Proc/EffectSettings/GIMPShadowsHightlightsSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectGIMPShadowsHightlights, GIMPShadowsHightlightsSettings>;

GIMPShadowsHightlightsSettings::~GIMPShadowsHightlightsSettings() = default;

} // namespace Ombrel::PhotoCore
