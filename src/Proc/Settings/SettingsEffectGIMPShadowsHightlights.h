#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_GIMP_SHADOWS_HIGHTLIGHTS_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_GIMP_SHADOWS_HIGHTLIGHTS_H

#include "Proc/Settings/SettingsRecord.h"

namespace Ombrel::Proc
{

/// Lightens shadows and darkens highlights. The names of the classes are misspelled, and the class id with them, as stored; the
/// keys are not. Every value is stored as given; shadows, highlights and a white point of 0 change nothing.
class OMBREL_API SettingsEffectGIMPShadowsHightlights : public ComparedRecord<SettingsEffectGIMPShadowsHightlights>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_GIMP_SHADOWS_HIGHTLIGHTS";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if every value has its default.
    bool IsEmpty() const override;

    float GetShadows() const { return m_shadows; }
    void SetShadows(float value) { m_shadows = value; }

    float GetShadowsColorCorrect() const { return m_shadowsColorCorrect; }
    void SetShadowsColorCorrect(float value) { m_shadowsColorCorrect = value; }

    float GetHighlights() const { return m_highlights; }
    void SetHighlights(float value) { m_highlights = value; }

    float GetHighlightsColorCorrect() const { return m_highlightsColorCorrect; }
    void SetHighlightsColorCorrect(float value) { m_highlightsColorCorrect = value; }

    float GetWhitepoint() const { return m_whitepoint; }
    void SetWhitepoint(float value) { m_whitepoint = value; }

    float GetCompress() const { return m_compress; }
    void SetCompress(float value) { m_compress = value; }

    float GetIntensity() const { return m_intensity; }
    void SetIntensity(float value) { m_intensity = value; }

private:
    float m_shadows = 0.0f;
    float m_shadowsColorCorrect = 0.0f;
    float m_highlights = 0.0f;
    float m_highlightsColorCorrect = 0.0f;
    float m_whitepoint = 0.0f;
    float m_compress = 0.0f;
    float m_intensity = 1.0f;
};

} // namespace Ombrel::Proc

#endif
