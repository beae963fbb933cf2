#include "Proc/EffectSettings/AutoGlareRemoveSettings.h"

namespace Ombrel::PhotoCore
{

AutoGlareRemoveSettings::AutoGlareRemoveSettings() = default;
AutoGlareRemoveSettings::AutoGlareRemoveSettings(const AutoGlareRemoveSettings&) = default;
AutoGlareRemoveSettings::AutoGlareRemoveSettings(AutoGlareRemoveSettings&&) noexcept = default;
AutoGlareRemoveSettings& AutoGlareRemoveSettings::operator=(const AutoGlareRemoveSettings&) = default;
AutoGlareRemoveSettings& AutoGlareRemoveSettings::operator=(AutoGlareRemoveSettings&&) noexcept = default;
AutoGlareRemoveSettings::~AutoGlareRemoveSettings() = default;

const std::string& AutoGlareRemoveSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
