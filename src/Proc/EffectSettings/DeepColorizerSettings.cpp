#include "Proc/EffectSettings/DeepColorizerSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectDeepColorizer, DeepColorizerSettings>;

DeepColorizerSettings::~DeepColorizerSettings() = default;

} // namespace Ombrel::PhotoCore
