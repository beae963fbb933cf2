#include "Proc/EffectSettings/ColoredGlassSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& ColoredGlassSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
