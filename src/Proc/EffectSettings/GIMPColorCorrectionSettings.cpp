#include "Proc/EffectSettings/GIMPColorCorrectionSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& GIMPColorCorrectionSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
