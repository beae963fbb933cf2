#ifndef STUDIO_FRAME_SETTINGS_H
#define STUDIO_FRAME_SETTINGS_H

#include "SettingsEffectFrame.h"

#include "Proc/EffectSettings/EffectSettingsImpl.h"

#include <string>

namespace Studio
{

/// The settings class of a caller's own record.
class FrameSettings : public Ombrel::PhotoCore::EffectSettingsOneInputReflection<SettingsEffectFrame, FrameSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    const std::string& GetClassId() const override;

    /// What the record says.
    bool IsEmpty() const override;
};

} // namespace Studio

#endif
