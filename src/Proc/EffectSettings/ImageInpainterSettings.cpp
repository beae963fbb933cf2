#include "Proc/EffectSettings/ImageInpainterSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& ImageInpainterSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
