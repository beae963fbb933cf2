#include "Proc/EffectSettings/DeepColorizerSettings.h"

namespace Ombrel::PhotoCore
{

const std::string& DeepColorizerSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
