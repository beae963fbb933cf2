#include "Proc/EffectSettings/ColorspaceConverterSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsColorspaceConverter, ColorspaceConverterSettings>;

const std::string& ColorspaceConverterSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
