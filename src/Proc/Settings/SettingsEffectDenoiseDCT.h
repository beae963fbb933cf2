#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_DENOISE_DCT_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_DENOISE_DCT_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

/// Removes noise block by block. Every value is stored as given.
class OMBREL_API SettingsEffectDenoiseDCT : public ComparedRecord<SettingsEffectDenoiseDCT>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_DENOISE_DCT";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if the record is as by default.
    bool IsEmpty() const override;

    double GetSigma() const { return m_sigma; }
    void SetSigma(double value) { m_sigma = value; }

    std::int32_t GetOverlapSize() const { return m_overlapSize; }
    void SetOverlapSize(std::int32_t value) { m_overlapSize = value; }

    std::int32_t GetBlockSizeBits() const { return m_blockSizeBits; }
    void SetBlockSizeBits(std::int32_t value) { m_blockSizeBits = value; }

private:
    double m_sigma = 0.0;
    std::int32_t m_overlapSize = 0;
    std::int32_t m_blockSizeBits = 0;
};

} // namespace Ombrel::Proc

#endif
