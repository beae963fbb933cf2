#include "Proc/EffectSettings/EmbossSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& EmbossSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
