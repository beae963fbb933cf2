#include "Proc/EffectSettings/VignetteFilterSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& VignetteFilterSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
