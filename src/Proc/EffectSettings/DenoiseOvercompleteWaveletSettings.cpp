#include "Proc/EffectSettings/DenoiseOvercompleteWaveletSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectDenoiseOvercompleteWavelet, DenoiseOvercompleteWaveletSettings>;

DenoiseOvercompleteWaveletSettings::~DenoiseOvercompleteWaveletSettings() = default;

} // namespace Ombrel::PhotoCore
