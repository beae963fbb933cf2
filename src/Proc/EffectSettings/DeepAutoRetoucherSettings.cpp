#include "Proc/EffectSettings/DeepAutoRetoucherSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectDeepAutoRetoucher, DeepAutoRetoucherSettings>;

DeepAutoRetoucherSettings::~DeepAutoRetoucherSettings() = default;

} // namespace Ombrel::PhotoCore
