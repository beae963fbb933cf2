#include "Proc/EffectSettings/GIMPShadowsHightlightsSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& GIMPShadowsHightlightsSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
