#include "Proc/EffectSettings/GIMPColorizeSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& GIMPColorizeSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
