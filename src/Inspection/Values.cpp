#include "Inspection/Values.h"

#include "PropertyTree/PropertyTreeOutput.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <utility>
#include <vector>

namespace Ombrel::Inspection
{
namespace
{

using Kind = PropertyTreeScalar::Kind;

// -0.0 is no integer of its own. Both bounds are exact.
bool IsInteger(double value, std::int64_t integer)
{
    return value >= -9223372036854775808.0 && value < 9223372036854775808.0 && static_cast<std::int64_t>(value) == integer &&
           static_cast<double>(static_cast<std::int64_t>(value)) == value;
}

bool AreSameScalars(const PropertyTreeScalar& a, const PropertyTreeScalar& b)
{
    if (a.kind() == Kind::Float && b.kind() == Kind::Float)
    {
        return a.toDouble() == b.toDouble() || (std::isnan(a.toDouble()) && std::isnan(b.toDouble()));
    }
    if (a.kind() == Kind::Float && b.kind() == Kind::Integer)
    {
        return IsInteger(a.toDouble(), b.toInt());
    }
    if (a.kind() == Kind::Integer && b.kind() == Kind::Float)
    {
        return IsInteger(b.toDouble(), a.toInt());
    }
    return a == b;
}

} // namespace

bool IsNumber(const PropertyTree& value)
{
    return value.isScalar() && (value.getScalar().kind() == Kind::Integer || value.getScalar().kind() == Kind::Float);
}

bool IsText(const PropertyTree& value)
{
    return value.isScalar() && value.getScalar().kind() == Kind::String;
}

std::int64_t CutTo(Proc::ValueKind kind, std::int64_t value)
{
    switch (kind)
    {
    case Proc::ValueKind::Int32:
        return static_cast<std::int32_t>(value);
    case Proc::ValueKind::UInt32:
        return static_cast<std::uint32_t>(value);
    case Proc::ValueKind::UInt8:
        return static_cast<std::uint8_t>(value);
    default:
        return value;
    }
}

std::optional<std::int64_t> IntegerOf(const PropertyTree& value)
{
    try
    {
        return value.getScalar().toInt();
    }
    catch (const std::out_of_range&)
    {
        return std::nullopt;
    }
}

std::string Quoted(std::string_view text)
{
    constexpr std::size_t most = 80;
    std::string quoted = "\"";
    quoted += text.substr(0, most);
    quoted += text.size() > most ? "...\"" : "\"";
    return quoted;
}

std::string Shown(const PropertyTree& value)
{
    if (!value.isScalar())
    {
        return value.isMap() ? "a map" : value.isList() ? "a list" : "null";
    }
    const PropertyTreeScalar& scalar = value.getScalar();
    switch (scalar.kind())
    {
    case Kind::Bool:
    {
        bool isTrue = false;
        scalar.convertTo(isTrue);
        return isTrue ? "true" : "false";
    }
    case Kind::Integer:
        return std::to_string(scalar.toInt());
    case Kind::Float:
    {
        std::array<char, 32> digits; // enough for every double
        char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), scalar.toDouble()).ptr;
        const std::string text(digits.data(), end);
        return text.find_first_of(".en") == std::string::npos ? text + ".0" : text; // unlike an integer, an infinity or a NaN
    }
    default:
        return Quoted(scalar.toString());
    }
}

std::string KeyOf(const PropertyTree& value)
{
    if (value.isScalar() && value.getScalar().kind() == Kind::Float)
    {
        const double number = value.getScalar().toDouble();
        const std::int64_t integer = std::fabs(number) < 9e18 ? static_cast<std::int64_t>(number) : 0;
        if (IsInteger(number, integer))
        {
            return std::to_string(integer);
        }
    }
    if (value.isMap())
    {
        std::string key;
        for (const auto& [name, child] : value.getMap())
        {
            key += std::to_string(name.size()) + ' ' + name + KeyOf(child) + ' ';
        }
        return key;
    }
    std::ostringstream text;
    text << value;
    return text.str();
}

bool AreSame(const PropertyTree& a, const PropertyTree& b)
{
    if (a.isScalar() && b.isScalar())
    {
        return AreSameScalars(a.getScalar(), b.getScalar());
    }
    std::vector<std::pair<const PropertyTree*, const PropertyTree*>> pending{{&a, &b}};
    while (!pending.empty())
    {
        const auto [left, right] = pending.back();
        pending.pop_back();
        if (left->isScalar() && right->isScalar())
        {
            if (!AreSameScalars(left->getScalar(), right->getScalar()))
            {
                return false;
            }
        }
        else if (left->isList() && right->isList())
        {
            if (left->getList().size() != right->getList().size())
            {
                return false;
            }
            for (std::size_t index = 0; index != left->getList().size(); ++index)
            {
                pending.emplace_back(&left->getList()[index], &right->getList()[index]);
            }
        }
        else if (left->isMap() && right->isMap())
        {
            if (left->getMap().size() != right->getMap().size())
            {
                return false;
            }
            auto other = right->getMap().begin();
            for (const auto& [key, child] : left->getMap())
            {
                if (key != other->first)
                {
                    return false;
                }
                pending.emplace_back(&child, &other->second);
                ++other;
            }
        }
        else if (!left->isNull() || !right->isNull())
        {
            return false;
        }
    }
    return true;
}

bool AreSameOrMissing(const PropertyTree* a, const PropertyTree* b)
{
    return a && b ? AreSame(*a, *b) : a == b;
}

bool IsUnordered(const Proc::ValueSchema* schema)
{
    return schema && (schema->kind == Proc::ValueKind::Set || schema->kind == Proc::ValueKind::ColorMap);
}

bool AreSameUnordered(const PropertyTree& a, const PropertyTree& b)
{
    const auto isFlat = [](const PropertyTree& element)
    {
        const auto isNoContainer = [](const auto& entry) { return !entry.second.isMap() && !entry.second.isList(); };
        return element.isMap() ? std::ranges::all_of(element.getMap(), isNoContainer) : !element.isList();
    };
    if (!a.isList() || !b.isList() || a.getList().size() != b.getList().size() || AreSame(a, b) ||
        !std::ranges::all_of(a.getList(), isFlat) || !std::ranges::all_of(b.getList(), isFlat))
    {
        return AreSame(a, b);
    }
    const auto keysOf = [](const PropertyTree& list)
    {
        std::vector<std::string> keys;
        std::ranges::transform(list.getList(), std::back_inserter(keys), &KeyOf);
        std::ranges::sort(keys);
        return keys;
    };
    return keysOf(a) == keysOf(b);
}

} // namespace Ombrel::Inspection
