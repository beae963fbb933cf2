#include "Proc/EffectSettings/ColorMixBurnSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& ColorMixBurnSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
