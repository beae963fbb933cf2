#include "Proc/EffectSettings/GradientPosterizeSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& GradientPosterizeSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
