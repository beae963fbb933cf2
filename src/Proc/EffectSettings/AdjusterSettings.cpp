#include "Proc/EffectSettings/AdjusterSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& AdjusterSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
