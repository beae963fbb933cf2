#include "Proc/EffectSettings/DirectionalAreaDeformationSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& DirectionalAreaDeformationSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
