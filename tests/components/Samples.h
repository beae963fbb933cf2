#ifndef OMBREL_TESTS_COMPONENTS_SAMPLES_H
#define OMBREL_TESTS_COMPONENTS_SAMPLES_H

#include "Proc/Reflection/Folds.h"

#include <cstdint>
#include <set>
#include <string>
#include <utility>
#include <vector>

// Records of the tests' own, with every kind of value.
namespace Samples
{

enum class Channel : std::int32_t
{
    None = 0, // has no name
    Red = 1,
    Green = 2,
    Alpha = 8,
};

struct Point
{
    std::int32_t m_x = 0;
    std::int32_t m_y = 0;

    bool operator==(const Point&) const = default;
};

/// A default of its own for a nested point.
struct Pupil
{
    Point m_point{-1, -1};

    bool operator==(const Pupil&) const = default;
};

struct Everything
{
    std::int32_t m_int32 = 1;
    std::uint32_t m_uint32 = 2;
    std::uint8_t m_uint8 = 3;
    std::int64_t m_int64 = 4;
    std::uint64_t m_uint64 = 5;
    double m_float64 = 0.5;
    float m_float32 = 0.25f;
    bool m_bool = true;
    std::string m_string = "text";
    Channel m_enum = Channel::Green;
    Pupil m_record{{7, 8}};
    std::pair<Point, std::int32_t> m_pair{Point{1, 2}, 3};
    std::vector<Point> m_points;
    std::vector<Channel> m_channels;
    std::vector<std::vector<std::int32_t>> m_rows;
    std::set<Channel> m_set;
};

/// The same containers behind setters, with a count of their calls.
class Properties
{
public:
    int m_calls = 0;

    void SetValue(std::int32_t value)
    {
        ++m_calls;
        m_value = value < 100 ? value : 100;
    }
    std::int32_t GetValue() const { return m_value; }

    void SetPoints(std::vector<Point> value)
    {
        ++m_calls;
        m_points = std::move(value);
    }
    const std::vector<Point>& GetPoints() const { return m_points; }

    void SetChannels(const std::set<Channel>& value)
    {
        ++m_calls;
        m_channels = value;
    }
    std::set<Channel> GetChannels() const { return m_channels; }

    void SetPoint(const Point& value)
    {
        ++m_calls;
        m_point = value;
    }
    const Point& GetPoint() const { return m_point; }

private:
    std::int32_t m_value = 5;
    std::vector<Point> m_points{{1, 1}};
    std::set<Channel> m_channels{Channel::Red};
    Point m_point{3, 4};
};

struct Level
{
    double m_level = 0.0;
};

/// Has no default constructor.
struct Made
{
    explicit Made(int value) : m_value(value) {}

    static Made MakeDefault() { return Made(42); }

    std::int32_t m_value;
};

} // namespace Samples

namespace Ombrel::Proc
{

template <> struct EnumNames<Samples::Channel>
{
    using E = Samples::Channel;

    static constexpr EnumNameRow ROWS[] = {{"Red", E::Red}, {"Green", E::Green}, {"Alpha", E::Alpha}};
    static constexpr EnumNameTable TABLE{ROWS};
};

template <> struct Fields<Samples::Point>
{
    using List = FieldList<FieldDescriptor<&Samples::Point::m_x>, FieldDescriptor<&Samples::Point::m_y>>;
};

template <> struct Fields<Samples::Pupil>
{
    using List = FieldList<FieldDescriptor<&Samples::Pupil::m_point>>;
};

template <> struct Fields<Samples::Everything>
{
    using R = Samples::Everything;
    using List = FieldList<FieldDescriptor<&R::m_int32>, FieldDescriptor<&R::m_uint32>, FieldDescriptor<&R::m_uint8>,
                           FieldDescriptor<&R::m_int64>, FieldDescriptor<&R::m_uint64>, FieldDescriptor<&R::m_float64>,
                           FieldDescriptor<&R::m_float32>, FieldDescriptor<&R::m_bool>, FieldDescriptor<&R::m_string>,
                           FieldDescriptor<&R::m_enum>, FieldDescriptor<&R::m_record>, FieldDescriptor<&R::m_pair>,
                           FieldDescriptor<&R::m_points>, FieldDescriptor<&R::m_channels>, FieldDescriptor<&R::m_rows>,
                           FieldDescriptor<&R::m_set>>;
};

template <> struct Fields<Samples::Properties>
{
    using R = Samples::Properties;
    using List = FieldList<AccessorDescriptor<"value", &R::SetValue, &R::GetValue>,
                           AccessorDescriptor<"points", &R::SetPoints, &R::GetPoints>,
                           AccessorDescriptor<"channels", &R::SetChannels, &R::GetChannels>,
                           AccessorDescriptor<"point", &R::SetPoint, &R::GetPoint>>;
};

template <> struct Fields<Samples::Level>
{
    using List = FieldList<FieldDescriptor<&Samples::Level::m_level>>;
};

template <> struct Fields<Samples::Made>
{
    using List = FieldList<FieldDescriptor<&Samples::Made::m_value>>;
};

} // namespace Ombrel::Proc

namespace Samples
{

/// Reads a map into a record; by default a missing key resets its field.
template <class Record> void Read(Record& record, const Ombrel::PropertyTree& tree, bool resetMissing = true)
{
    const Ombrel::Proc::ReadFlags flags{.resetMissing = resetMissing};
    Ombrel::Proc::Reflected<Record>::Read({record, tree.getMap(), &flags});
}

/// Writes a record into a map; by default only what differs from the default.
template <class Record>
void Write(const Record& record, Ombrel::PropertyTree& tree, bool omitDefaults = true, bool resetTargets = true)
{
    const Ombrel::Proc::WriteFlags flags{.resetTargets = resetTargets, .omitDefaults = omitDefaults};
    tree.convertToMap();
    Ombrel::Proc::Reflected<Record>::Write({record, tree.getMap(), &flags});
}

template <class Record> Ombrel::PropertyTree TreeOf(const Record& record, bool omitDefaults = true)
{
    Ombrel::PropertyTree tree;
    Write(record, tree, omitDefaults);
    return tree;
}

} // namespace Samples

#endif
