#include "Proc/EffectSettings/SketchSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<Proc::SettingsEffectSketch, SketchSettings>;

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
