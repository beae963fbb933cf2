#include "Proc/EffectSettings/HistogramSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectHistogram, HistogramSettings>;

HistogramSettings::~HistogramSettings() = default;

} // namespace Ombrel::PhotoCore
