#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_ADJUSTER_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_ADJUSTER_H

#include "Proc/Settings/SettingsEffectColorBalance.h"
#include "Proc/Settings/SettingsEffectColorBalanceAuto.h"
#include "Proc/Settings/SettingsEffectDetailsEnhance.h"
#include "Proc/Settings/SettingsEffectSmartBlur.h"
#include "Proc/Settings/SettingsEffectVibrance.h"
#include "Proc/Settings/SettingsRecord.h"

namespace Ombrel::Proc
{

/// The tone panel: five records of other effects side by side with fifteen controls of its own. A missing nested record takes
/// the value that it has in here by default, a missing field of one that is present the nested record's own default.
class OMBREL_API SettingsEffectAdjuster : public ComparedRecord<SettingsEffectAdjuster>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_ADJUSTER";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// The smart blur starts with both radii at 100, unlike a smart blur that stands alone.
    SettingsEffectAdjuster();
    SettingsEffectColorBalanceAuto m_colorBalanceAuto;
    SettingsEffectColorBalance m_colorBalance;
    SettingsEffectVibrance m_vibrance;
    SettingsEffectDetailsEnhance m_detailsEnhance;
    SettingsEffectSmartBlur m_smartBlur;
    double m_colorizeHue = 0.0;
    double m_colorizeSaturation = 0.0;
    double m_colorizeLightness = 0.0;
    double m_colorizeIntensity = 1.0;
    double m_temperature = 0.0;
    double m_temperatureIntensity = 1.0;
    double m_brightness = 0.0;
    double m_contrast = 0.0;
    double m_gamma = 0.0;
    double m_hue = 0.0;
    double m_hueIntensity = 1.0;
    double m_highlights = 0.0;
    double m_highlightsIntensity = 1.0;
    double m_shadows = 0.0;
    double m_shadowsIntensity = 1.0;
};

} // namespace Ombrel::Proc

#endif
