#include "FrameSettings.h"

namespace Studio
{

const std::string& FrameSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

bool FrameSettings::IsEmpty() const
{
    return settings.IsEmpty();
}

} // namespace Studio
