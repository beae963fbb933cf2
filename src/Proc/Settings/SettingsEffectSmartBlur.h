#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_SMART_BLUR_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_SMART_BLUR_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

/// Blur that keeps edges, for luma and chroma apart. Every value is stored as given.
class OMBREL_API SettingsEffectSmartBlur : public ComparedRecord<SettingsEffectSmartBlur>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_SMART_BLUR";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if all eight values are 0, as by default. With another threshold alone the record is not empty.
    bool IsEmpty() const override;

    std::int32_t GetLumaRadius() const { return m_lumaRadius; }
    void SetLumaRadius(std::int32_t value) { m_lumaRadius = value; }

    std::int32_t GetChromaRadius() const { return m_chromaRadius; }
    void SetChromaRadius(std::int32_t value) { m_chromaRadius = value; }

    std::int32_t GetLumaBlur() const { return m_lumaBlur; }
    void SetLumaBlur(std::int32_t value) { m_lumaBlur = value; }

    std::int32_t GetChromaBlur() const { return m_chromaBlur; }
    void SetChromaBlur(std::int32_t value) { m_chromaBlur = value; }

    std::int32_t GetLumaSharpen() const { return m_lumaSharpen; }
    void SetLumaSharpen(std::int32_t value) { m_lumaSharpen = value; }

    std::int32_t GetChromaSharpen() const { return m_chromaSharpen; }
    void SetChromaSharpen(std::int32_t value) { m_chromaSharpen = value; }

    std::int32_t GetLumaThreshold() const { return m_lumaThreshold; }
    void SetLumaThreshold(std::int32_t value) { m_lumaThreshold = value; }

    std::int32_t GetChromaThreshold() const { return m_chromaThreshold; }
    void SetChromaThreshold(std::int32_t value) { m_chromaThreshold = value; }

private:
    // Each luma value is followed by its chroma partner; the stored order of the keys is another.
    std::int32_t m_lumaRadius = 0;
    std::int32_t m_chromaRadius = 0;
    std::int32_t m_lumaBlur = 0;
    std::int32_t m_chromaBlur = 0;
    std::int32_t m_lumaSharpen = 0;
    std::int32_t m_chromaSharpen = 0;
    std::int32_t m_lumaThreshold = 0;
    std::int32_t m_chromaThreshold = 0;
};

} // namespace Ombrel::Proc

#endif
