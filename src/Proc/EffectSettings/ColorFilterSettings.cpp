#include "Proc/EffectSettings/ColorFilterSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& ColorFilterSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
