#include "Proc/EffectSettings/ReplaceChromaSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& ReplaceChromaSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
