#include "Proc/EffectSettings/AutoGlareRemoveSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectAutoGlareRemove, AutoGlareRemoveSettings>;

const std::string& AutoGlareRemoveSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
