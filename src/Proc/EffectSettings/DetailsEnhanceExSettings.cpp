#include "Proc/EffectSettings/DetailsEnhanceExSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectDetailsEnhanceEx, DetailsEnhanceExSettings>;

const std::string& DetailsEnhanceExSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
