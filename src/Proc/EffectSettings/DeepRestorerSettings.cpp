#include "Proc/EffectSettings/DeepRestorerSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& DeepRestorerSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
