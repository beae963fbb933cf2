#include "Proc/EffectSettings/DreamscopeSettings.h"

namespace Ombrel::PhotoCore
{

DreamscopeSettings::DreamscopeSettings() = default;
DreamscopeSettings::DreamscopeSettings(const DreamscopeSettings&) = default;
DreamscopeSettings::DreamscopeSettings(DreamscopeSettings&&) noexcept = default;
DreamscopeSettings& DreamscopeSettings::operator=(const DreamscopeSettings&) = default;
DreamscopeSettings& DreamscopeSettings::operator=(DreamscopeSettings&&) noexcept = default;
DreamscopeSettings::~DreamscopeSettings() = default;

const std::string& DreamscopeSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
