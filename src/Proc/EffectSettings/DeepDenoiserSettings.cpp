#include "Proc/EffectSettings/DeepDenoiserSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& DeepDenoiserSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
