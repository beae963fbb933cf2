#include "Proc/EffectSettings/RetroArtefactsSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& RetroArtefactsSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
