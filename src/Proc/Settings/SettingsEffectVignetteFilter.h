#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_VIGNETTE_FILTER_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_VIGNETTE_FILTER_H

#include "Proc/Settings/RgbaColor.h"
#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

/// Vignette between an inner and an outer radius. It starts at intensity 0, which leaves the picture alone. Every value is
/// stored as given.
class OMBREL_API SettingsEffectVignetteFilter : public ComparedRecord<SettingsEffectVignetteFilter>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_VIGNETTE_FILTER";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// Counted from 0, named from 1.
    enum class Form : std::int32_t
    {
        enForm1 = 0,
        enForm2 = 1,
        enForm3 = 2,
        enForm4 = 3,
        enForm5 = 4,
        enForm6 = 5,
    };

    enum class Smooth : std::int32_t
    {
        enLin = 0,
        enCos = 1,
    };

    enum class Aspect : std::int32_t
    {
        enEql = 0,
        enOgn = 1,
    };

    /// True if every value has its default.
    bool IsEmpty() const override;

    Form GetForm() const { return m_form; }
    void SetForm(Form value) { m_form = value; }

    Smooth GetSmooth() const { return m_smooth; }
    void SetSmooth(Smooth value) { m_smooth = value; }

    Aspect GetAspect() const { return m_aspect; }
    void SetAspect(Aspect value) { m_aspect = value; }

    double GetX0() const { return m_x0; }
    void SetX0(double value) { m_x0 = value; }

    double GetY0() const { return m_y0; }
    void SetY0(double value) { m_y0 = value; }

    double GetRInternal() const { return m_RInternal; }
    void SetRInternal(double value) { m_RInternal = value; }

    double GetRExternal() const { return m_RExternal; }
    void SetRExternal(double value) { m_RExternal = value; }

    const RgbaColor& GetColor() const { return m_color; }
    void SetColor(const RgbaColor& value) { m_color = value; }

    float GetIntensity() const { return m_intensity; }
    void SetIntensity(float value) { m_intensity = value; }

private:
    // Held in another order than the keys are stored in: the colour stands before the numbers.
    Form m_form = Form::enForm1;
    Smooth m_smooth = Smooth::enLin;
    Aspect m_aspect = Aspect::enEql;
    RgbaColor m_color;
    double m_x0 = 0.0;
    double m_y0 = 0.0;
    double m_RInternal = 0.0; // capital as stored
    double m_RExternal = 0.0;
    float m_intensity = 0.0f;
};

} // namespace Ombrel::Proc

#endif
