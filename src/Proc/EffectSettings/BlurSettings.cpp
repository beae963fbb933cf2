#include "Proc/EffectSettings/BlurSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& BlurSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
