#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_CHARCOAL_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_CHARCOAL_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

/// Charcoal drawing.
class OMBREL_API SettingsEffectCharcoal : public ComparedRecord<SettingsEffectCharcoal>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_CHARCOAL";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if `m_radius` is 0.
    bool IsEmpty() const override;

    std::int32_t m_radius = 0;
    double m_sigma = 0.5;
};

} // namespace Ombrel::Proc

#endif
