#include "Proc/EffectSettings/FlipSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectFlip, FlipSettings>;

const std::string& FlipSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

bool FlipSettings::IsAdditive() const
{
    return true;
}

void FlipSettings::Add(const FlipSettings& other)
{
    settings.SetHorizontal(settings.GetHorizontal() != other.settings.GetHorizontal());
    settings.SetVertical(settings.GetVertical() != other.settings.GetVertical());
}

} // namespace Ombrel::PhotoCore
