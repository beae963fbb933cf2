#include "Proc/EffectSettings/InpaintSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& InpaintSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
