#include "Proc/EffectSettings/VignetteSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& VignetteSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
