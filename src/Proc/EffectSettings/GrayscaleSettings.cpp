#include "Proc/EffectSettings/GrayscaleSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& GrayscaleSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
