#include "Proc/EffectSettings/WhiteBalanceSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectWhiteBalance, WhiteBalanceSettings>;

const std::string& WhiteBalanceSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
