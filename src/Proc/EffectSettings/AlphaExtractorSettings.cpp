#include "Proc/EffectSettings/AlphaExtractorSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectAlphaExtractor, AlphaExtractorSettings>;

AlphaExtractorSettings::~AlphaExtractorSettings() = default;

} // namespace Ombrel::PhotoCore
