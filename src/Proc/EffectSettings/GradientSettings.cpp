#include "Proc/EffectSettings/GradientSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectGradient, GradientSettings>;

GradientSettings::~GradientSettings() = default;

} // namespace Ombrel::PhotoCore
