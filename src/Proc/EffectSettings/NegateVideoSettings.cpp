#include "Proc/EffectSettings/NegateVideoSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& NegateVideoSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
