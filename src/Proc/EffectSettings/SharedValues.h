#ifndef OMBREL_PROC_EFFECT_SETTINGS_SHARED_VALUES_H
#define OMBREL_PROC_EFFECT_SETTINGS_SHARED_VALUES_H

#include "OmbrelExport.h"
#include "Proc/Settings/PixFmt.h"

#include <cstdint>
#include <vector>

namespace Ombrel::PhotoCore
{

/// A rectangle in pixels.
struct OMBREL_API ROI
{
    std::int32_t left = 0;   // of the first column
    std::int32_t top = 0;    // of the first row
    std::int32_t width = 0;  // how many columns
    std::int32_t height = 0; // how many rows

    bool operator==(const ROI&) const = default;

    /// Makes this the bounding box of both and returns it. An empty rectangle still counts as a point. Sums wrap in 32 bits.
    ROI& Unite(const ROI& other);
};

namespace Const
{

/// An index or a size that is not set.
inline constexpr std::uint32_t NO_VALUE = 4294967295;

/// The formats that the image core works on: RGB24, BGRA, BGR0.
OMBREL_API extern const std::vector<PixFmt> CorePixelFormats;

} // namespace Const

/// The larger of two indices, where `Const::NO_VALUE` is no index.
OMBREL_API std::uint32_t MaxIndex(std::uint32_t a, std::uint32_t b);

} // namespace Ombrel::PhotoCore

#endif
