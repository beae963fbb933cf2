#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_GRADIENT_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_GRADIENT_H

#include "Proc/Settings/RgbaColor.h"
#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>
#include <map>

namespace Ombrel::Proc
{

/// Maps tones to the colours of a gradient.
class OMBREL_API SettingsEffectGradient : public ComparedRecord<SettingsEffectGradient>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_GRADIENT";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if `m_gradient` is empty.
    bool IsEmpty() const override;

    /// The colour at each tone. A stored list is read on top of the entries that are there; only a missing key empties the map.
    std::map<std::uint8_t, RgbaColor> m_gradient;
};

} // namespace Ombrel::Proc

#endif
