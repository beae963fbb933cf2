#include "Proc/EffectSettings/PopArtSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& PopArtSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
