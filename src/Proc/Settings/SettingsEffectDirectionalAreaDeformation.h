#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_DIRECTIONAL_AREA_DEFORMATION_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_DIRECTIONAL_AREA_DEFORMATION_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

/// Pushes an area of the given size from one point of the picture to another.
class OMBREL_API SettingsEffectDirectionalAreaDeformation : public ComparedRecord<SettingsEffectDirectionalAreaDeformation>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_DIRECTIONAL_AREA_DEFORMATION";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if `m_strength` is 0, wherever the points are.
    bool IsEmpty() const override;

    double m_strength = 0.0;
    std::int32_t m_fromX = 0;
    std::int32_t m_fromY = 0;
    std::int32_t m_toX = 0;
    std::int32_t m_toY = 0;
    std::int32_t m_size = 0;
};

} // namespace Ombrel::Proc

#endif
