#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_GRADIENT_POSTERIZE_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_GRADIENT_POSTERIZE_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectGradientPosterize : public ComparedRecord<SettingsEffectGradientPosterize>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_GRADIENT_POSTERIZE";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if `m_colorCount` is 0.
    bool IsEmpty() const override;

    std::uint8_t m_colorCount = 0;
};

} // namespace Ombrel::Proc

#endif
