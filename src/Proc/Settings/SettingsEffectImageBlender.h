#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_IMAGE_BLENDER_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_IMAGE_BLENDER_H

#include "Proc/Settings/SettingsEffectColorBlender.h"
#include "Proc/Settings/SettingsRecord.h"

namespace Ombrel::Proc
{

/// Lays a second picture on the first. By default it does not show.
///
/// Whatever is stored under "alpha", a read ends with "blendingMode", which sets the intensity again, to the number of the mode
/// over 255, and never the mode. Property access to "alpha" alone keeps what it sets.
class OMBREL_API SettingsEffectImageBlender : public SettingsRecord<SettingsEffectImageBlender, SettingsEffectColorBlender>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_BLEND";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    SettingsEffectImageBlender();
    SettingsEffectImageBlender(const SettingsEffectImageBlender&);
    SettingsEffectImageBlender(SettingsEffectImageBlender&&) noexcept;
    SettingsEffectImageBlender& operator=(const SettingsEffectImageBlender&);
    SettingsEffectImageBlender& operator=(SettingsEffectImageBlender&&) noexcept;
    ~SettingsEffectImageBlender() override;

    const std::string& GetClassId() const override;

    /// True if the record is as by default.
    bool IsEmpty() const override;
};

} // namespace Ombrel::Proc

#endif
