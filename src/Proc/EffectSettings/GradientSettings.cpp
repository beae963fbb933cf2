#include "Proc/EffectSettings/GradientSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectGradient, GradientSettings>;

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
