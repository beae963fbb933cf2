#include "Proc/EffectSettings/HalfToneSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectHalfTone, HalfToneSettings>;

const std::string& HalfToneSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
