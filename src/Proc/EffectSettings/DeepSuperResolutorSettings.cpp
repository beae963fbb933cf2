#include "Proc/EffectSettings/DeepSuperResolutorSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& DeepSuperResolutorSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
