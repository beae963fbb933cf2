#include "Proc/EffectSettings/SegmentationSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& SegmentationSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
