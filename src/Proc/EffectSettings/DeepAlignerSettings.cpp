#include "Proc/EffectSettings/DeepAlignerSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& DeepAlignerSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
