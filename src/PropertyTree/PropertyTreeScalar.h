#ifndef OMBREL_PROPERTY_TREE_PROPERTY_TREE_SCALAR_H
#define OMBREL_PROPERTY_TREE_PROPERTY_TREE_SCALAR_H

#include "OmbrelExport.h"

#include <bit>
#include <concepts>
#include <cstdint>
#include <new>
#include <string>
#include <utility>

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

    PropertyTreeScalar(std::same_as<bool> auto value) noexcept : m_kind(Number(Kind::Bool)), m_bits(value) {}

    /// Widens to 64 bits: sign-extended from a signed type, zero-extended from an unsigned one. An unsigned 64-bit value
    /// above the signed range stands as the negative integer of the same bits.
    template <std::integral T>
    requires(!std::same_as<T, bool>) PropertyTreeScalar(T value)
    noexcept : m_kind(Number(Kind::Integer)), m_bits(static_cast<std::uint64_t>(value)) {}

    PropertyTreeScalar(std::floating_point auto value) noexcept
        : m_kind(Number(Kind::Float)), m_bits(std::bit_cast<std::uint64_t>(static_cast<double>(value)))
    {
    }

    PropertyTreeScalar(std::string value) noexcept : m_kind(Number(Kind::String)), m_text(std::move(value)) {}

    /// Copies up to the terminating zero; `text` must not be null.
    PropertyTreeScalar(const char* text) : PropertyTreeScalar(std::string(text)) {}

    PropertyTreeScalar(const PropertyTreeScalar& other) : PropertyTreeScalar(other, other.m_text) {}
    PropertyTreeScalar(PropertyTreeScalar&& other) noexcept : PropertyTreeScalar(other, std::move(other.m_text)) {}

    ~PropertyTreeScalar()
    {
        if (IsText())
        {
            m_text.~basic_string();
        }
    }

    PropertyTreeScalar& operator=(const PropertyTreeScalar& other) { return *this = PropertyTreeScalar(other); }

    PropertyTreeScalar& operator=(PropertyTreeScalar&& other) noexcept
    {
        PropertyTreeScalar value(std::move(other)); // first, since the two may be one
        this->~PropertyTreeScalar();
        return *::new (static_cast<void*>(this)) PropertyTreeScalar(std::move(value));
    }

    Kind kind() const noexcept { return static_cast<Kind>(m_kind); }

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
    friend OMBREL_API bool operator==(const PropertyTreeScalar& a, const PropertyTreeScalar& b) noexcept;

private:
    static constexpr std::uint8_t Number(Kind kind) { return static_cast<std::uint8_t>(kind); }

    // `text` is that of `other`, if it has one.
    template <class Text> PropertyTreeScalar(const PropertyTreeScalar& other, Text&& text) : m_kind(other.m_kind)
    {
        if (IsText())
        {
            ::new (static_cast<void*>(&m_text)) std::string(std::forward<Text>(text));
        }
        else
        {
            m_bits = other.m_bits;
        }
    }

    bool IsText() const noexcept { return m_kind == Number(Kind::String); }

    std::int64_t Integer() const noexcept { return static_cast<std::int64_t>(m_bits); }
    double Float() const noexcept { return std::bit_cast<double>(m_bits); }

    // The kind's number stands first and as a plain byte: a tree reads its own state from the same place.
    std::uint8_t m_kind;
    union
    {
        std::uint64_t m_bits; // of a bool, an integer or a float, so that copying need not tell them apart
        std::string m_text;
    };
};

} // namespace Ombrel

#endif
