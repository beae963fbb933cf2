#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_TILT_SHIFT_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_TILT_SHIFT_H

#include "Proc/Settings/SettingsEffectShapeMask.h"
#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

/// Keeps a part of the picture sharp and blurs the rest, as if only a narrow band were in focus. Every value is stored as
/// given.
class OMBREL_API SettingsEffectTiltShift : public ComparedRecord<SettingsEffectTiltShift>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_TILT_SHIFT";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if the record is as by default.
    bool IsEmpty() const override;

    SettingsEffectShapeMask m_alpha; // a whole mask, despite its name
    std::int32_t m_blur = 0;
    std::int32_t m_sharpen = 0;
};

} // namespace Ombrel::Proc

#endif
