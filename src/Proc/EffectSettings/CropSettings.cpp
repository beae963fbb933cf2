#include "Proc/EffectSettings/CropSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

#include <cstdint>

namespace Ombrel::PhotoCore
{
namespace
{

std::int32_t WrappingSum(std::int32_t a, std::int32_t b)
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

} // namespace

template class EffectSettingsImpl<Proc::SettingsEffectCrop, CropSettings>;

CropSettings::~CropSettings() = default;

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
