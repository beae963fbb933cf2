#include "Proc/EffectSettings/EffectsPackageWithBrushSettings.h"

namespace Ombrel::PhotoCore
{

EffectsPackageWithBrushSettings::EffectsPackageWithBrushSettings() = default;
EffectsPackageWithBrushSettings::EffectsPackageWithBrushSettings(const EffectsPackageWithBrushSettings&) = default;
EffectsPackageWithBrushSettings::EffectsPackageWithBrushSettings(EffectsPackageWithBrushSettings&&) noexcept = default;
EffectsPackageWithBrushSettings& EffectsPackageWithBrushSettings::operator=(const EffectsPackageWithBrushSettings&) = default;
EffectsPackageWithBrushSettings&
EffectsPackageWithBrushSettings::operator=(EffectsPackageWithBrushSettings&&) noexcept = default;
EffectsPackageWithBrushSettings::~EffectsPackageWithBrushSettings() = default;

const std::string& EffectsPackageWithBrushSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

bool EffectsPackageWithBrushSettings::IsEmpty() const
{
    return settings.IsEmpty();
}

} // namespace Ombrel::PhotoCore
