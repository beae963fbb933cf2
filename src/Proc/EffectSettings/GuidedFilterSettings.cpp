#include "Proc/EffectSettings/GuidedFilterSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& GuidedFilterSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
