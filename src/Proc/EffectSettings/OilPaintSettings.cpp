#include "Proc/EffectSettings/OilPaintSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectOilPaint, OilPaintSettings>;

OilPaintSettings::~OilPaintSettings() = default;

} // namespace Ombrel::PhotoCore
