#include "Proc/EffectSettings/AcidSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& AcidSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
