#include "Proc/Settings/PixFmt.h"

#include "Proc/Reflection/Codec.h"
#include "Proc/Settings/PixFmtNames.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <utility>

namespace
{

using Ombrel::PixFmt;
using Ombrel::PropertyTree;

constexpr std::pair<const char*, int> FORMATS[] = {
    {"None", -1},      {"YUV420P", 0}, {"RGB24", 2},   {"BGR24", 3},     {"YUV422P", 4},   {"YUV444P", 5},   {"YUV410P", 6},
    {"YUV411P", 7},    {"GRAY8", 8},   {"PAL8", 11},   {"YUVJ420P", 12}, {"YUVJ422P", 13}, {"YUVJ444P", 14}, {"NV12", 23},
    {"NV21", 24},      {"ARGB", 25},   {"RGBA", 26},   {"ABGR", 27},     {"BGRA", 28},     {"YUV440P", 31},  {"YUVJ440P", 32},
    {"YUVA420P", 33},  {"_0RGB", 120}, {"RGB0", 121},  {"_0BGR", 122},   {"BGR0", 123},    {"YUVA444P", 81}, {"YUVA422P", 80},
    {"YUVJ411P", 140}, {"GBRP", 73},   {"GBRAP", 113}, {"CUDA", 119},    {"BGR565BE", 40}, {"BGR565LE", 41},
};

TEST(PixFmt, HasItsNamesInBothDirections)
{
    const Ombrel::Proc::EnumNameTable& table = Ombrel::Proc::EnumNames<PixFmt>::TABLE;
    EXPECT_EQ(table.rows.size(), 34u);
    auto row = table.rows.begin();
    for (const auto& [name, value] : FORMATS)
    {
        EXPECT_EQ(row->name, name);
        EXPECT_EQ(table.ValueOf(name), value) << name;
        EXPECT_EQ(table.NameOf(value), name);
        ++row;
    }
}

TEST(PixFmt, TheEnumeratorsHaveTheValues)
{
    EXPECT_EQ(static_cast<int>(PixFmt::None), -1);
    EXPECT_EQ(static_cast<int>(PixFmt::YUV420P), 0);
    EXPECT_EQ(static_cast<int>(PixFmt::_0RGB), 120);
    EXPECT_EQ(static_cast<int>(PixFmt::BGR565LE), 41);
}

TEST(PixFmt, AValueWithoutANameIsWrittenEmptyAndComesBackAsNone)
{
    using Codec = Ombrel::Proc::Codec<PixFmt>;
    PropertyTree tree;
    Codec::Write(tree, static_cast<PixFmt>(1), nullptr);
    EXPECT_EQ(tree, PropertyTree(""));

    PixFmt format = PixFmt::RGB24;
    Codec::Read(tree, format, nullptr);
    EXPECT_EQ(format, PixFmt::None);
}

TEST(PixFmt, NamesAreExact)
{
    const Ombrel::Proc::EnumNameTable& table = Ombrel::Proc::EnumNames<PixFmt>::TABLE;
    for (const char* name : {"rgb24", "RGB24 ", "RGB2", "0RGB", ""})
    {
        EXPECT_EQ(table.ValueOf(name), -1) << name;
    }
}

} // namespace
