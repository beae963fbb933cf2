#include "Proc/EffectSettings/GradientPosterizeSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectGradientPosterize, GradientPosterizeSettings>;

const std::string& GradientPosterizeSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
