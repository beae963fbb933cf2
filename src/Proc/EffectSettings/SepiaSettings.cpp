#include "Proc/EffectSettings/SepiaSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& SepiaSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
