#include "Proc/EffectSettings/ColoredGlassSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectColoredGlass, ColoredGlassSettings>;

const std::string& ColoredGlassSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
