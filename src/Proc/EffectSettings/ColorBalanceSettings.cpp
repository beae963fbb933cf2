#include "Proc/EffectSettings/ColorBalanceSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectColorBalance, ColorBalanceSettings>;

ColorBalanceSettings::~ColorBalanceSettings() = default;

bool ColorBalanceSettings::IsEmpty() const
{
    return settings.IsEmpty();
}

} // namespace Ombrel::PhotoCore
