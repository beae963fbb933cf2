#include "Proc/EffectSettings/DeepAlignerSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectDeepAligner, DeepAlignerSettings>;

DeepAlignerSettings::~DeepAlignerSettings() = default;

} // namespace Ombrel::PhotoCore
