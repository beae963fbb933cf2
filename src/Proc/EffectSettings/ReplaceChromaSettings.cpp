#include "Proc/EffectSettings/ReplaceChromaSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectReplaceChroma, ReplaceChromaSettings>;

const std::string& ReplaceChromaSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
