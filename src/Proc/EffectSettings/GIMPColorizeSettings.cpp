#include "Proc/EffectSettings/GIMPColorizeSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectGIMPColorize, GIMPColorizeSettings>;

const std::string& GIMPColorizeSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
