#include "Proc/EffectSettings/GuidedFilterSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectGuidedFilter, GuidedFilterSettings>;

GuidedFilterSettings::~GuidedFilterSettings() = default;

} // namespace Ombrel::PhotoCore
