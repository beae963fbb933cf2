#ifndef OMBREL_PROPERTY_TREE_JSON_JSON_NUMBER_H
#define OMBREL_PROPERTY_TREE_JSON_JSON_NUMBER_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace Ombrel
{

/// A number as it is spelled, which the grammar of JSON allows.
struct JsonNumber
{
    /// The integer, unless it does not fit. `isFloat` must be false.
    std::optional<std::int64_t> ToInteger() const noexcept;

    /// The nearest float, unless the number is beyond the largest one. `isFloat` must be true.
    /// @throws std::bad_alloc only where the standard library has no exact `std::from_chars` for floats
    std::optional<double> ToFloat() const;

    std::string_view spelling;
    std::uint64_t digits = 0;       ///< all digits before the exponent as one number, modulo 2^64
    std::size_t digitCount = 0;     ///< how many these are
    std::size_t fractionDigits = 0; ///< how many of them are behind the point
    bool isFloat = false;           ///< has a point or an exponent
    bool hasExponent = false;
};

} // namespace Ombrel

#endif
