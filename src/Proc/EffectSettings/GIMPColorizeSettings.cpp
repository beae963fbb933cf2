#include "Proc/EffectSettings/GIMPColorizeSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectGIMPColorize, GIMPColorizeSettings>;

GIMPColorizeSettings::~GIMPColorizeSettings() = default;

} // namespace Ombrel::PhotoCore
