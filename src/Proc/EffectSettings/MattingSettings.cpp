#include "Proc/EffectSettings/MattingSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& MattingSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
