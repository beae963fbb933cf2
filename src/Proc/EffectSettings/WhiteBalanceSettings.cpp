#include "Proc/EffectSettings/WhiteBalanceSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectWhiteBalance, WhiteBalanceSettings>;

WhiteBalanceSettings::~WhiteBalanceSettings() = default;

} // namespace Ombrel::PhotoCore
