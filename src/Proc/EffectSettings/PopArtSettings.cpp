#include "Proc/EffectSettings/PopArtSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectPopArt, PopArtSettings>;

PopArtSettings::~PopArtSettings() = default;

} // namespace Ombrel::PhotoCore
