#include "Proc/EffectSettings/EmbossSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectEmboss, EmbossSettings>;

const std::string& EmbossSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
