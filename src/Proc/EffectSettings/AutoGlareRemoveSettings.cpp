#include "Proc/EffectSettings/AutoGlareRemoveSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectAutoGlareRemove, AutoGlareRemoveSettings>;

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
