#ifndef OMBREL_CONF_FRAME_INFO_H
#define OMBREL_CONF_FRAME_INFO_H

#include "OmbrelExport.h"

#include <cstdint>

namespace Ombrel::Conf
{

/// The size of a frame in pixels and its aspect as the ratio ax : ay.
struct FrameInfo
{
    std::uint32_t width = 0;  // pixels
    std::uint32_t height = 0; // pixels
    std::uint32_t ax = 0;     // the first number of the ratio
    std::uint32_t ay = 0;     // the second one

    bool operator==(const FrameInfo&) const = default;
};

} // namespace Ombrel::Conf

#endif
