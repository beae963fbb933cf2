#include "Proc/EffectSettings/DenoiseDCTSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& DenoiseDCTSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
