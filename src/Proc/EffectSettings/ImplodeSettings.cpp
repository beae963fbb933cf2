#include "Proc/EffectSettings/ImplodeSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& ImplodeSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
