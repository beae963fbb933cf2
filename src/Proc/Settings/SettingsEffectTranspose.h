#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_TRANSPOSE_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_TRANSPOSE_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

/// Rotation by quarter turns.
class OMBREL_API SettingsEffectTranspose : public ComparedRecord<SettingsEffectTranspose>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_TRANSPOSE";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// Counts quarter turns, not degrees. Unlike any other enumeration it is also read from an integer, by its number; it is
    /// always written by name, which for a negative number is the empty one.
    enum class TransposeAngle : std::int32_t
    {
        NoRotation = 0,
        Angle_90 = 1,
        Angle_180 = 2,
        Angle_270 = 3,
    };

    /// True if the angle is `NoRotation`, as by default.
    bool IsEmpty() const override;

    TransposeAngle GetAngle() const { return m_angle; }

    /// Stores the remainder by 4, with the sign of the value: 6 becomes 2, and -1 stays -1.
    void SetAngle(TransposeAngle value);

    /// One quarter turn more, from whatever is stored; the result is one of the four named angles.
    void AddAngle90();

private:
    TransposeAngle m_angle = TransposeAngle::NoRotation;
};

} // namespace Ombrel::Proc

#endif
