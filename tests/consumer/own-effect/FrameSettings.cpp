#include "FrameSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

template class Ombrel::PhotoCore::EffectSettingsImpl<Studio::SettingsEffectFrame, Studio::FrameSettings>;

namespace Studio
{

FrameSettings::~FrameSettings() = default;

bool FrameSettings::IsEmpty() const
{
    return settings.IsEmpty();
}

} // namespace Studio
