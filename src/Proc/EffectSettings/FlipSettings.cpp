#include "Proc/EffectSettings/FlipSettings.h"

namespace Ombrel::PhotoCore
{

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
