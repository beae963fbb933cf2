#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_HISTOGRAM_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_HISTOGRAM_H

#include "Proc/Settings/PixFmt.h"
#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

/// A histogram drawn over the picture.
class OMBREL_API SettingsEffectHistogram : public ComparedRecord<SettingsEffectHistogram>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_HISTOGRAM";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    std::uint32_t m_width = 256;
    std::uint32_t m_heightLevel = 50;
    std::uint32_t m_heightScale = 12;
    std::int32_t m_sharpen = -1;
    PixFmt m_pixFmt = PixFmt::RGB24;
    std::int64_t m_flags = -1; // all bits set
};

} // namespace Ombrel::Proc

#endif
