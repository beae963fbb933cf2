#include "Proc/EffectSettings/EdgeDetectSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& EdgeDetectSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
