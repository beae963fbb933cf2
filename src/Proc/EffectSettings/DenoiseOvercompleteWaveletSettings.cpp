#include "Proc/EffectSettings/DenoiseOvercompleteWaveletSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& DenoiseOvercompleteWaveletSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
