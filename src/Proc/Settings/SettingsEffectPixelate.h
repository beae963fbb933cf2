#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_PIXELATE_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_PIXELATE_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

/// Coarsens the picture by scaling it down and up again.
class OMBREL_API SettingsEffectPixelate : public SettingsRecord<SettingsEffectPixelate>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_PIXELATE";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    enum class ScaleMethod : std::int32_t
    {
        enFastBilinear = 0,
        enBilinear = 1,
        enBicubic = 2,
        enX = 3,
        enPoint = 4,
        enArea = 5,
        enBicublin = 6,
        enGauss = 7,
        enSinc = 8,
        enLanczos = 9,
        enSpline = 10,
    };

    /// True if `m_strength` is below 1e-5, as every negative one is.
    bool IsEmpty() const override;

    /// Equal methods and strengths less than 1e-5 apart; a NaN equals nothing.
    bool operator==(const SettingsEffectPixelate& other) const;

    double m_strength = 0.0;
    ScaleMethod m_methodDownscale = ScaleMethod::enBilinear;
    ScaleMethod m_methodUpscale = ScaleMethod::enPoint;
};

} // namespace Ombrel::Proc

#endif
