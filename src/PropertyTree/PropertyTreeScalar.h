#ifndef OMBREL_PROPERTY_TREE_PROPERTY_TREE_SCALAR_H
#define OMBREL_PROPERTY_TREE_PROPERTY_TREE_SCALAR_H

#include "Export.h"

#include <concepts>
#include <cstdint>
#include <string>
#include <utility>
#include <variant>

namespace Ombrel
{

/// One leaf of a stored tree: a bool, a signed 64-bit integer, a 64-bit float or a string.
///
/// Integers and floats convert into each other, because a store may print 5.0 as 5. Every other mix of kinds throws
/// `std::invalid_argument`, which names the kind that was asked for and the one that is there. Reading never changes the
/// object, so that any number of threads may read one scalar at once.
class OMBREL_API PropertyTreeScalar
{
public:
    enum class Kind : std::uint8_t
    {
        Bool = 1,
        Integer = 2,
        Float = 3,
        String = 4,
    };

    PropertyTreeScalar(std::same_as<bool> auto value) noexcept : m_value(value) {}

    /// Widens to 64 bits: sign-extended from a signed type, zero-extended from an unsigned one. An unsigned 64-bit value
    /// above the signed range stands as the negative integer of the same bits.
    template <std::integral T>
    requires(!std::same_as<T, bool>) PropertyTreeScalar(T value)
    noexcept : m_value(static_cast<std::int64_t>(value)) {}

    PropertyTreeScalar(std::floating_point auto value) noexcept : m_value(static_cast<double>(value)) {}

    PropertyTreeScalar(std::string value) noexcept : m_value(std::move(value)) {}

    /// Copies up to the terminating zero; `text` must not be null.
    PropertyTreeScalar(const char* text) : m_value(std::string(text)) {}

    Kind kind() const noexcept { return static_cast<Kind>(m_value.index() + 1); }

    /// The integer; a float is truncated towards zero.
    /// @throws std::out_of_range if a float is NaN or does not fit 64 bits
    /// @throws std::invalid_argument on a bool or a string
    std::int64_t toInt() const;

    /// The float; an integer is rounded to the nearest float.
    /// @throws std::invalid_argument on a bool or a string
    double toDouble() const;

    /// The stored string itself: the reference lives until this scalar is assigned or destroyed.
    /// @throws std::invalid_argument on any other kind
    const std::string& toString() const;

    /// As `toString`, as a zero-terminated text: a string with a zero inside seems to end there.
    /// @throws std::invalid_argument on any other kind
    const char* toCString() const;

    /// Stores the bool in `value`.
    /// @throws std::invalid_argument on any other kind; `value` is then unchanged
    void convertTo(bool& value) const;

    /// Stores a copy of the string in `value`.
    /// @throws std::invalid_argument on any other kind; `value` is then unchanged
    void convertTo(std::string& value) const;

    /// Equal kind and equal value: the integer 1 is not the float 1.0, -0.0 is 0.0, and a NaN equals nothing.
    friend bool operator==(const PropertyTreeScalar&, const PropertyTreeScalar&) = default;

private:
    // The order of the alternatives is the order of Kind.
    std::variant<bool, std::int64_t, double, std::string> m_value;
};

} // namespace Ombrel

#endif
