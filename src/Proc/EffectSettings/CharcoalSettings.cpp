#include "Proc/EffectSettings/CharcoalSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& CharcoalSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
