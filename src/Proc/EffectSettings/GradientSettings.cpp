#include "Proc/EffectSettings/GradientSettings.h"

namespace Ombrel::PhotoCore
{

GradientSettings::GradientSettings() = default;
GradientSettings::GradientSettings(const GradientSettings&) = default;
GradientSettings::GradientSettings(GradientSettings&&) noexcept = default;
GradientSettings& GradientSettings::operator=(const GradientSettings&) = default;
GradientSettings& GradientSettings::operator=(GradientSettings&&) noexcept = default;
GradientSettings::~GradientSettings() = default;

const std::string& GradientSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
