#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_DENOISE_OVERCOMPLETE_WAVELET_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_DENOISE_OVERCOMPLETE_WAVELET_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

/// Removes noise from luma and chroma apart by wavelets. Every value is stored as given.
class OMBREL_API SettingsEffectDenoiseOvercompleteWavelet : public ComparedRecord<SettingsEffectDenoiseOvercompleteWavelet>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_DENOISE_OVERCOMPLETE_WAVELET";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if the record is as by default.
    bool IsEmpty() const override;

    std::int32_t GetDepth() const { return m_depth; }
    void SetDepth(std::int32_t value) { m_depth = value; }

    double GetLumaStrength() const { return m_lumaStrength; }
    void SetLumaStrength(double value) { m_lumaStrength = value; }

    double GetChromaStrength() const { return m_chromaStrength; }
    void SetChromaStrength(double value) { m_chromaStrength = value; }

private:
    std::int32_t m_depth = 0;
    double m_lumaStrength = 0.0;
    double m_chromaStrength = 0.0;
};

} // namespace Ombrel::Proc

#endif
