#include "Proc/EffectSettings/AlphaExtractorSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectAlphaExtractor, AlphaExtractorSettings>;

const std::string& AlphaExtractorSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
