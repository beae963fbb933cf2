#include "Proc/EffectSettings/DeepAdjusterSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& DeepAdjusterSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
