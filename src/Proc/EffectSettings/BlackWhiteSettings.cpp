#include "Proc/EffectSettings/BlackWhiteSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& BlackWhiteSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
