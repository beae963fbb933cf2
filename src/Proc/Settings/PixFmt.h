#ifndef OMBREL_PROC_SETTINGS_PIX_FMT_H
#define OMBREL_PROC_SETTINGS_PIX_FMT_H

#include "OmbrelExport.h"

#include <cstdint>

namespace Ombrel
{

/// Layouts of a pixel in memory. The values have gaps.
enum class PixFmt : std::int32_t
{
    None = -1,
    YUV420P = 0,
    RGB24 = 2,
    BGR24 = 3,
    YUV422P = 4,
    YUV444P = 5,
    YUV410P = 6,
    YUV411P = 7,
    GRAY8 = 8,
    PAL8 = 11,
    YUVJ420P = 12,
    YUVJ422P = 13,
    YUVJ444P = 14,
    NV12 = 23,
    NV21 = 24,
    ARGB = 25,
    RGBA = 26,
    ABGR = 27,
    BGRA = 28,
    YUV440P = 31,
    YUVJ440P = 32,
    YUVA420P = 33,
    _0RGB = 120,
    RGB0 = 121,
    _0BGR = 122,
    BGR0 = 123,
    YUVA444P = 81,
    YUVA422P = 80,
    YUVJ411P = 140,
    GBRP = 73,
    GBRAP = 113,
    CUDA = 119,
    BGR565BE = 40,
    BGR565LE = 41,
};

} // namespace Ombrel

#endif
