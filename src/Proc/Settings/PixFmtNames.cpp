#include "Proc/Settings/PixFmtNames.h"

namespace Ombrel::Proc
{
namespace
{

constexpr EnumNameRow ROWS[] = {
    {"None", PixFmt::None},         {"YUV420P", PixFmt::YUV420P},   {"RGB24", PixFmt::RGB24},
    {"BGR24", PixFmt::BGR24},       {"YUV422P", PixFmt::YUV422P},   {"YUV444P", PixFmt::YUV444P},
    {"YUV410P", PixFmt::YUV410P},   {"YUV411P", PixFmt::YUV411P},   {"GRAY8", PixFmt::GRAY8},
    {"PAL8", PixFmt::PAL8},         {"YUVJ420P", PixFmt::YUVJ420P}, {"YUVJ422P", PixFmt::YUVJ422P},
    {"YUVJ444P", PixFmt::YUVJ444P}, {"NV12", PixFmt::NV12},         {"NV21", PixFmt::NV21},
    {"ARGB", PixFmt::ARGB},         {"RGBA", PixFmt::RGBA},         {"ABGR", PixFmt::ABGR},
    {"BGRA", PixFmt::BGRA},         {"YUV440P", PixFmt::YUV440P},   {"YUVJ440P", PixFmt::YUVJ440P},
    {"YUVA420P", PixFmt::YUVA420P}, {"_0RGB", PixFmt::_0RGB},       {"RGB0", PixFmt::RGB0},
    {"_0BGR", PixFmt::_0BGR},       {"BGR0", PixFmt::BGR0},         {"YUVA444P", PixFmt::YUVA444P},
    {"YUVA422P", PixFmt::YUVA422P}, {"YUVJ411P", PixFmt::YUVJ411P}, {"GBRP", PixFmt::GBRP},
    {"GBRAP", PixFmt::GBRAP},       {"CUDA", PixFmt::CUDA},         {"BGR565BE", PixFmt::BGR565BE},
    {"BGR565LE", PixFmt::BGR565LE},
};

} // namespace

constinit const EnumNameTable EnumNames<PixFmt>::TABLE{ROWS, static_cast<std::int32_t>(PixFmt::None)};

} // namespace Ombrel::Proc
