#include "Proc/EffectSettings/PosterizeSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectPosterize, PosterizeSettings>;

PosterizeSettings::~PosterizeSettings() = default;

} // namespace Ombrel::PhotoCore
