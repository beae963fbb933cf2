#include "Proc/EffectSettings/DeepDenoiserSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectDeepDenoiser, DeepDenoiserSettings>;

DeepDenoiserSettings::~DeepDenoiserSettings() = default;

} // namespace Ombrel::PhotoCore
