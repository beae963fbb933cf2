#include "Proc/EffectSettings/TransposeSettings.h"

#include <cstdint>

namespace Ombrel::PhotoCore
{

TransposeSettings::TransposeSettings() = default;
TransposeSettings::TransposeSettings(const TransposeSettings&) = default;
TransposeSettings::TransposeSettings(TransposeSettings&&) noexcept = default;
TransposeSettings& TransposeSettings::operator=(const TransposeSettings&) = default;
TransposeSettings& TransposeSettings::operator=(TransposeSettings&&) noexcept = default;
TransposeSettings::~TransposeSettings() = default;

const std::string& TransposeSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

bool TransposeSettings::IsAdditive() const
{
    return true;
}

void TransposeSettings::Add(const TransposeSettings& other)
{
    // Counted before the first turn, because `other` may be this object.
    const auto quarterTurns = static_cast<std::int32_t>(other.settings.GetAngle());
    for (std::int32_t turned = 0; turned < quarterTurns; ++turned)
    {
        settings.AddAngle90();
    }
}

} // namespace Ombrel::PhotoCore
