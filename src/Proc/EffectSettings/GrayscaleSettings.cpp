#include "Proc/EffectSettings/GrayscaleSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectGrayscale, GrayscaleSettings>;

GrayscaleSettings::~GrayscaleSettings() = default;

} // namespace Ombrel::PhotoCore
