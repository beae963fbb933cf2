#include "Proc/EffectSettings/HalfToneSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& HalfToneSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
