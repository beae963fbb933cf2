#include "Proc/EffectSettings/DeepAutoRetoucherSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& DeepAutoRetoucherSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
