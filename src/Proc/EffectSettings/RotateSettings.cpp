#include "Proc/EffectSettings/RotateSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectRotate, RotateSettings>;

RotateSettings::~RotateSettings() = default;

} // namespace Ombrel::PhotoCore
