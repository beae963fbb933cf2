#include "Proc/EffectSettings/RetroColorsSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& RetroColorsSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
