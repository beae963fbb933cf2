#ifndef OMBREL_PROPERTY_TREE_PROPERTY_TREE_SCALAR_H
#define OMBREL_PROPERTY_TREE_PROPERTY_TREE_SCALAR_H

#include "OmbrelExport.h"

#include <bit>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace Ombrel
{

/// A type of single characters. They make no scalar, since the number that they are for the language is not what the caller
/// means. `signed char` and `unsigned char` are 8-bit integers.
template <class T>
concept PropertyTreeCharacter = std::same_as<T, char> || std::same_as<T, wchar_t> || std::same_as<T, char8_t> ||
    std::same_as<T, char16_t> || std::same_as<T, char32_t>;

/// A type whose values are bools though it is not `bool`: an element of a `std::vector<bool>`, `std::true_type`,
/// `std::false_type` and what derives from these.
template <class T>
concept PropertyTreeBoolLike =
    std::same_as<T, std::vector<bool>::reference> || std::same_as<T, std::vector<bool>::const_reference> ||
    std::derived_from<T, std::true_type> || std::derived_from<T, std::false_type>;

/// One leaf of a stored tree: a bool, a signed 64-bit integer, a 64-bit float or a string.
///
/// Integers and floats convert into each other, because a store may print 5.0 as 5. Every other mix of kinds throws
/// `std::invalid_argument`, which names the kind that was asked for and the one that is there. Reading never changes the
/// object, so that any number of threads may read one scalar at once.
class OMBREL_API PropertyTreeScalar
{
public:
    /// What a scalar holds. The numbers never change.
    enum class Kind : std::uint8_t
    {
        Bool = 1,
        Integer = 2,
        Float = 3,
        String = 4,
    };

    /// A bool.
    PropertyTreeScalar(std::same_as<bool> auto value) noexcept : m_kind(Number(Kind::Bool)), m_bits(value) {}

    /// The bool that `value` stands for.
    template <PropertyTreeBoolLike T>
    requires(!std::same_as<T, bool>) PropertyTreeScalar(const T& value)
    noexcept : PropertyTreeScalar(static_cast<bool>(value)) {}

    /// Widens to 64 bits: sign-extended from a signed type, zero-extended from an unsigned one. An unsigned 64-bit value
    /// above the signed range becomes the negative integer with the same bits.
    template <std::integral T>
    requires(!std::same_as<T, bool> && !PropertyTreeCharacter<T>) PropertyTreeScalar(T value)
    noexcept : m_kind(Number(Kind::Integer)), m_bits(static_cast<std::uint64_t>(value)) {}

    /// A float, widened to 64 bits.
    PropertyTreeScalar(std::floating_point auto value) noexcept
        : m_kind(Number(Kind::Float)), m_bits(std::bit_cast<std::uint64_t>(static_cast<double>(value)))
    {
    }

    /// A string.
    /// @throws std::bad_alloc, as for every text
    PropertyTreeScalar(std::string value) : m_kind(Number(Kind::String)), m_text(Own(std::move(value), m_kind)) {}

    PropertyTreeScalar(std::string_view text) : PropertyTreeScalar(std::string(text)) {}

    /// Copies up to the terminating zero; `text` must not be null.
    PropertyTreeScalar(const char* text) : PropertyTreeScalar(std::string(text)) {}

    // A null pointer is no text, and a single character no number.
    PropertyTreeScalar(std::nullptr_t) = delete;
    template <PropertyTreeCharacter T> PropertyTreeScalar(T) = delete;

    PropertyTreeScalar(const PropertyTreeScalar& other) : m_kind(other.m_kind), m_bits(other.m_bits)
    {
        if (OwnsText())
        {
            m_text = Copy(*other.m_text);
        }
    }

    /// Leaves the integer 0 behind.
    PropertyTreeScalar(PropertyTreeScalar&& other) noexcept : m_kind(other.m_kind), m_bits(other.m_bits)
    {
        other.m_kind = Number(Kind::Integer);
        other.m_bits = 0;
    }

    ~PropertyTreeScalar()
    {
        if (OwnsText())
        {
            Destroy(m_text);
        }
    }

    PropertyTreeScalar& operator=(const PropertyTreeScalar& other) { return *this = PropertyTreeScalar(other); }

    PropertyTreeScalar& operator=(PropertyTreeScalar&& other) noexcept
    {
        PropertyTreeScalar value(std::move(other)); // first, since the two may be one
        std::swap(m_kind, value.m_kind);
        std::swap(m_bits, value.m_bits);
        return *this;
    }

    /// What this scalar holds.
    Kind kind() const noexcept { return static_cast<Kind>(m_kind & KIND); }

    /// The integer; a float is truncated towards zero.
    /// @throws std::out_of_range if a float is NaN or does not fit 64 bits
    /// @throws std::invalid_argument on a bool or a string
    std::int64_t toInt() const;

    /// The float; an integer is rounded to the nearest float.
    /// @throws std::invalid_argument on a bool or a string
    double toDouble() const;

    /// The stored string itself: the reference is valid until this scalar is assigned or destroyed.
    /// @throws std::invalid_argument on any other kind
    const std::string& toString() const;

    /// As `toString`, as a zero-terminated text: a string with a zero inside seems to end there.
    /// @throws std::invalid_argument on any other kind
    const char* toCString() const;

    /// Stores the bool in `value`.
    /// @throws std::invalid_argument on any other kind; `value` is then unchanged
    void convertTo(bool& value) const;

    /// Stores a copy of the string in `value`.
    /// @throws std::invalid_argument on any other kind, std::bad_alloc; `value` is then unchanged
    void convertTo(std::string& value) const;

    /// Equal kind and equal value: the integer 1 is not the float 1.0, -0.0 is 0.0, and a NaN equals nothing.
    friend OMBREL_API bool operator==(const PropertyTreeScalar& a, const PropertyTreeScalar& b) noexcept;

private:
    friend class PropertyTree;

    static constexpr std::uint64_t KIND = 0xFF;
    static constexpr std::uint64_t KNOWN = 0x100; // beside the kind: the text is a known one, which the scalar does not own

    static constexpr std::uint64_t Number(Kind kind) { return static_cast<std::uint64_t>(kind); }

    // Exported for the functions above. Where the text is a known one, `kind` says so.
    static const std::string* Own(std::string&& text, std::uint64_t& kind);
    static const std::string* Copy(const std::string& text);
    static void Destroy(const std::string* text) noexcept;

    bool OwnsText() const noexcept { return m_kind == Number(Kind::String); }

    std::int64_t Integer() const noexcept { return static_cast<std::int64_t>(m_bits); }
    double Float() const noexcept { return std::bit_cast<double>(m_bits); }

    // The number of the kind comes first: a tree reads its own state from the same place. It is as wide as what follows, since
    // a processor that copies both at once would wait for a narrower store.
    std::uint64_t m_kind;
    union
    {
        std::uint64_t m_bits = 0; // of a bool, an integer or a float
        const std::string* m_text;
    };
};

} // namespace Ombrel

#endif
