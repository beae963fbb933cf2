#include "Proc/EffectSettings/CropSettings.h"

#include "Proc/EffectSettings/WrappingArithmetic.h"

#include <cstdint>

namespace Ombrel::PhotoCore
{

const std::string& CropSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

bool CropSettings::IsAdditive() const
{
    return true;
}

void CropSettings::Add(const CropSettings& other)
{
    const Proc::SettingsEffectCrop& added = other.settings;
    settings.SetX(WrappingSum(settings.GetX(), added.GetX()));
    settings.SetY(WrappingSum(settings.GetY(), added.GetY()));
    settings.SetWidth(added.GetWidth());
    settings.SetHeight(added.GetHeight());
}

} // namespace Ombrel::PhotoCore
