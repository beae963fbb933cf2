#include "Proc/EffectSettings/OilPaintSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& OilPaintSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
