#include "Proc/EffectSettings/DenoiseOvercompleteWaveletSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectDenoiseOvercompleteWavelet, DenoiseOvercompleteWaveletSettings>;

const std::string& DenoiseOvercompleteWaveletSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
