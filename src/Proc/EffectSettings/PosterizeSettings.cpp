#include "Proc/EffectSettings/PosterizeSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& PosterizeSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
