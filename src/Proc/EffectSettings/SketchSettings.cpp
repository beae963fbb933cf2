#include "Proc/EffectSettings/SketchSettings.h"

namespace Ombrel::PhotoCore
{

SketchSettings::SketchSettings() = default;
SketchSettings::SketchSettings(const SketchSettings&) = default;
SketchSettings::SketchSettings(SketchSettings&&) noexcept = default;
SketchSettings& SketchSettings::operator=(const SketchSettings&) = default;
SketchSettings& SketchSettings::operator=(SketchSettings&&) noexcept = default;
SketchSettings::~SketchSettings() = default;

const std::string& SketchSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

} // namespace Ombrel::PhotoCore
