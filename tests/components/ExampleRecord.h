#ifndef OMBREL_TESTS_COMPONENTS_EXAMPLE_RECORD_H
#define OMBREL_TESTS_COMPONENTS_EXAMPLE_RECORD_H

#include "Proc/Settings/RgbaColor.h"
#include "Proc/Settings/SettingsRecord.h"

#include <algorithm>
#include <cstdint>

namespace Ombrel::Proc
{

// CONTRIBUTING.md shows the two classes as they stand here.
// [record]
/// A nested record, stored as a map of its own. It is closed: its members are private, and each is listed by setter and getter.
class OMBREL_API ExampleEdge
{
public:
    static const RecordSchema& Schema() noexcept;

    /// Pixels, at least 0.
    void SetWidth(std::int32_t value) { m_width = std::max(value, 0); }
    std::int32_t GetWidth() const { return m_width; }

    bool operator==(const ExampleEdge&) const = default;

private:
    std::int32_t m_width = 1;
};

/// The base compares all fields. A record that compares otherwise takes `SettingsRecord` and declares its own `operator==`.
class OMBREL_API SettingsEffectExample : public ComparedRecord<SettingsEffectExample>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_EXAMPLE"; // the class id, stored as "name"
    static const std::string CLASS_ID;                          // the same as callers want it
    static const RecordSchema& Schema() noexcept;               // the field list

    const std::string& GetClassId() const override; // out of line: the home of the virtual table

    /// Stored by name, so the numbers may change and the names may not.
    enum class Shape : std::int32_t
    {
        Round = 0,
        Square = 1,
    };

    /// Only where the effect can be empty: true if its strength is 0.
    bool IsEmpty() const override;

    /// From -180 to 180 degrees. A member with a rule is private, and listed by setter and getter.
    void SetAngle(double value) { m_angle = std::clamp(value, -180.0, 180.0); }
    double GetAngle() const { return m_angle; }

    double m_strength = 0.5; // the key is the name without "m_", the default what stands here
    Shape m_shape = Shape::Square;
    RgbaColor m_color;
    ExampleEdge m_edge;

private:
    double m_angle = 0.0;
};
// [/record]

} // namespace Ombrel::Proc

#endif
