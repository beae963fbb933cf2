#include "Proc/EffectSettings/DeepAutoRetoucherSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectDeepAutoRetoucher, DeepAutoRetoucherSettings>;

const std::string& DeepAutoRetoucherSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
