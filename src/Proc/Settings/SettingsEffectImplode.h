#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_IMPLODE_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_IMPLODE_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectImplode : public ComparedRecord<SettingsEffectImplode>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_IMPLODE";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    enum class ImplodeMode : std::int32_t
    {
        Shrink = 0,
        Expand = 1,
    };

    /// True if `m_strength` is 0.
    bool IsEmpty() const override;

    double m_strength = 0.0;
    ImplodeMode m_mode = ImplodeMode::Shrink;
};

} // namespace Ombrel::Proc

#endif
