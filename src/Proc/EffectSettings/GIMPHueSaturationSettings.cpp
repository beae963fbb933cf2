#include "Proc/EffectSettings/GIMPHueSaturationSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& GIMPHueSaturationSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
