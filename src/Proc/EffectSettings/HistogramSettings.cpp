#include "Proc/EffectSettings/HistogramSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& HistogramSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
