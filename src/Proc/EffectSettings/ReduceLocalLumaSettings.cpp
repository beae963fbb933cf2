#include "Proc/EffectSettings/ReduceLocalLumaSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectReduceLocalLuma, ReduceLocalLumaSettings>;

const std::string& ReduceLocalLumaSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
