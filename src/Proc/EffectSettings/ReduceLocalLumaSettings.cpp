#include "Proc/EffectSettings/ReduceLocalLumaSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& ReduceLocalLumaSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
