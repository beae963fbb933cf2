#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_VIGNETTE_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_VIGNETTE_H

#include "Proc/Settings/RgbaColor.h"
#include "Proc/Settings/SettingsEffectShapeMask.h"
#include "Proc/Settings/SettingsRecord.h"

namespace Ombrel::Proc
{

/// Vignette: a colour laid over the picture through a mask. A missing mask takes the levels that it has in here by default, a
/// missing level of one that is present the mask's own.
class OMBREL_API SettingsEffectVignette : public ComparedRecord<SettingsEffectVignette>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_VIGNETTE";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// The mask lets the colour through outside the shape, unlike a mask that stands alone.
    SettingsEffectVignette();

    /// True if the mask lets nothing of the colour through.
    bool IsEmpty() const override;

    SettingsEffectShapeMask m_alpha; // despite its name a whole mask
    RgbaColor m_color;
};

} // namespace Ombrel::Proc

#endif
