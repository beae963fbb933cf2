#include "Proc/EffectSettings/GIMPColorCorrectionSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectGIMPColorCorrection, GIMPColorCorrectionSettings>;

const std::string& GIMPColorCorrectionSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
