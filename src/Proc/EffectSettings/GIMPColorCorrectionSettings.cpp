#include "Proc/EffectSettings/GIMPColorCorrectionSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectGIMPColorCorrection, GIMPColorCorrectionSettings>;

GIMPColorCorrectionSettings::~GIMPColorCorrectionSettings() = default;

} // namespace Ombrel::PhotoCore
