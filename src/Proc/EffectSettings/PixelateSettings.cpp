#include "Proc/EffectSettings/PixelateSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& PixelateSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
