#include "Proc/EffectSettings/SharpenSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& SharpenSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
