#include "FrameSettings.h"

#include "Proc/EffectSettings/OwnEffect.h"

template class Ombrel::PhotoCore::EffectSettingsImpl<Studio::SettingsEffectFrame, Studio::FrameSettings>;

namespace Studio
{

const std::string& FrameSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

bool FrameSettings::IsEmpty() const
{
    return settings.IsEmpty();
}

} // namespace Studio
