#ifndef OMBREL_PROC_SETTINGS_RGBA_COLOR_H
#define OMBREL_PROC_SETTINGS_RGBA_COLOR_H

#include "OmbrelExport.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace Ombrel::Proc
{

/// A colour of four bytes; opaque black by default.
struct RgbaColor
{
    std::uint8_t red = 0;     // 0 to 255
    std::uint8_t green = 0;   // 0 to 255
    std::uint8_t blue = 0;    // 0 to 255
    std::uint8_t alpha = 255; // 0 is transparent, 255 opaque

    bool operator==(const RgbaColor&) const = default;
};

/// Eight lowercase hexadecimal digits, red first and alpha last: opaque red is "ff0000ff".
OMBREL_API std::string ToText(const RgbaColor& color);

/// Reads a hexadecimal number of 32 bits, red in its highest byte, in the manner of `std::stoul`: leading white space, a sign
/// (a minus gives the two's complement) and "0x" are accepted, and what follows the last digit is ignored. A shorter text is
/// a smaller number: "ff" has alpha 255 and the rest 0. The locale plays no part.
/// @throws std::invalid_argument "invalid stoul argument" if there is no digit
/// @throws std::out_of_range "stoul argument out of range" if the number does not fit 32 bits
OMBREL_API RgbaColor ColorFromText(std::string_view text);

} // namespace Ombrel::Proc

#endif
