#include "Proc/EffectSettings/AlphaExtractorSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& AlphaExtractorSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
