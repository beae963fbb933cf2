#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_EMBOSS_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_EMBOSS_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

/// Relief along the direction (x, y). Every value is stored as given.
class OMBREL_API SettingsEffectEmboss : public ComparedRecord<SettingsEffectEmboss>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_EMBOSS";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if the record is as by default.
    bool IsEmpty() const override;

    std::int32_t GetX() const { return m_x; }
    void SetX(std::int32_t value) { m_x = value; }

    std::int32_t GetY() const { return m_y; }
    void SetY(std::int32_t value) { m_y = value; }

    bool GetColored() const { return m_colored; }
    void SetColored(bool value) { m_colored = value; }

private:
    std::int32_t m_x = 0;
    std::int32_t m_y = 0;
    bool m_colored = false;
};

} // namespace Ombrel::Proc

#endif
