#include "Proc/EffectSettings/EffectsPackageWithBrushSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<SettingsEffectMaskBlender, EffectsPackageWithBrushSettings>;

const std::string& EffectsPackageWithBrushSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

bool EffectsPackageWithBrushSettings::IsEmpty() const
{
    return settings.IsEmpty();
}

} // namespace Ombrel::PhotoCore
