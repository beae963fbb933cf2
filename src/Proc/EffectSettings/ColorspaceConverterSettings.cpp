#include "Proc/EffectSettings/ColorspaceConverterSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& ColorspaceConverterSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
