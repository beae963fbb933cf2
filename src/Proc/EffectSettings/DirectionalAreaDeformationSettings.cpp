#include "Proc/EffectSettings/DirectionalAreaDeformationSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectDirectionalAreaDeformation, DirectionalAreaDeformationSettings>;

const std::string& DirectionalAreaDeformationSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
