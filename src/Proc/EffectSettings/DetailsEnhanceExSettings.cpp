#include "Proc/EffectSettings/DetailsEnhanceExSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& DetailsEnhanceExSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
