#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_DENOISE_CHROMA_LUMA_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_DENOISE_CHROMA_LUMA_H

#include "Proc/Settings/SettingsRecord.h"

namespace Ombrel::Proc
{

/// Removes noise from luma and chroma apart, within a picture and over time. Every value is stored as given.
class OMBREL_API SettingsEffectDenoiseChromaLuma : public ComparedRecord<SettingsEffectDenoiseChromaLuma>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_DENOISE_CHROMA_LUMA";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if the record is as by default.
    bool IsEmpty() const override;

    double GetLumaStrength() const { return m_lumaStrength; }
    void SetLumaStrength(double value) { m_lumaStrength = value; }

    double GetChromaStrength() const { return m_chromaStrength; }
    void SetChromaStrength(double value) { m_chromaStrength = value; }

    double GetLumaStrengthTemporal() const { return m_lumaStrengthTemporal; }
    void SetLumaStrengthTemporal(double value) { m_lumaStrengthTemporal = value; }

    double GetChromaStrengthTemporal() const { return m_chromaStrengthTemporal; }
    void SetChromaStrengthTemporal(double value) { m_chromaStrengthTemporal = value; }

private:
    double m_lumaStrength = 0.0;
    double m_chromaStrength = 0.0;
    double m_lumaStrengthTemporal = 0.0;
    double m_chromaStrengthTemporal = 0.0;
};

} // namespace Ombrel::Proc

#endif
