#include "Proc/EffectSettings/SketchSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectSketch, SketchSettings>;

SketchSettings::~SketchSettings() = default;

} // namespace Ombrel::PhotoCore
