#include "Proc/EffectSettings/GIMPShadowsHightlightsSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectGIMPShadowsHightlights, GIMPShadowsHightlightsSettings>;

const std::string& GIMPShadowsHightlightsSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
