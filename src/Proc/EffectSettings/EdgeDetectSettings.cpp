#include "Proc/EffectSettings/EdgeDetectSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectEdgeDetect, EdgeDetectSettings>;

EdgeDetectSettings::~EdgeDetectSettings() = default;

} // namespace Ombrel::PhotoCore
