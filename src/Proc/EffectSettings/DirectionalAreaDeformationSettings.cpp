#include "Proc/EffectSettings/DirectionalAreaDeformationSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectDirectionalAreaDeformation, DirectionalAreaDeformationSettings>;

DirectionalAreaDeformationSettings::~DirectionalAreaDeformationSettings() = default;

} // namespace Ombrel::PhotoCore
