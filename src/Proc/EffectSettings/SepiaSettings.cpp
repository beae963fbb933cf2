#include "Proc/EffectSettings/SepiaSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectSepia, SepiaSettings>;

SepiaSettings::~SepiaSettings() = default;

} // namespace Ombrel::PhotoCore
