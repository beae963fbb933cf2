#include "Proc/EffectSettings/ColorspaceConverterSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsColorspaceConverter, ColorspaceConverterSettings>;

ColorspaceConverterSettings::~ColorspaceConverterSettings() = default;

} // namespace Ombrel::PhotoCore
