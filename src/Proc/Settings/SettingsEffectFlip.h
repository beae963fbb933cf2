#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_FLIP_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_FLIP_H

#include "Proc/Settings/SettingsRecord.h"

namespace Ombrel::Proc
{

/// Mirrors the picture along one axis, both or none.
class OMBREL_API SettingsEffectFlip : public ComparedRecord<SettingsEffectFlip>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_FLIP";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if neither axis is flipped, as by default.
    bool IsEmpty() const override;

    bool GetHorizontal() const { return m_horizontal; }
    void SetHorizontal(bool value) { m_horizontal = value; }

    bool GetVertical() const { return m_vertical; }
    void SetVertical(bool value) { m_vertical = value; }

private:
    bool m_horizontal = false;
    bool m_vertical = false;
};

} // namespace Ombrel::Proc

#endif
