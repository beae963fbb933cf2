#include "Proc/EffectSettings/GradientPosterizeSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectGradientPosterize, GradientPosterizeSettings>;

GradientPosterizeSettings::~GradientPosterizeSettings() = default;

} // namespace Ombrel::PhotoCore
