#include "Proc/EffectSettings/ColorReduceSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& ColorReduceSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
