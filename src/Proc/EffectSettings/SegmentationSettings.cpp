#include "Proc/EffectSettings/SegmentationSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectSegmentation, SegmentationSettings>;

SegmentationSettings::~SegmentationSettings() = default;

} // namespace Ombrel::PhotoCore
