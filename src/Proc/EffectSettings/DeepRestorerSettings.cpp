#include "Proc/EffectSettings/DeepRestorerSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectDeepRestorer, DeepRestorerSettings>;

DeepRestorerSettings::~DeepRestorerSettings() = default;

} // namespace Ombrel::PhotoCore
