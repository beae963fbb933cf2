#include "Proc/Settings/RgbaColor.h"

#include "Proc/Settings/RgbaColorCodec.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <clocale>
#include <locale>
#include <stdexcept>

namespace
{

using Ombrel::Proc::ColorFromText;
using Ombrel::Proc::RgbaColor;
using Ombrel::Proc::ToText;

struct Reading
{
    std::string text;
    std::uint32_t number; // red in the highest byte
};

void PrintTo(const Reading& reading, std::ostream* out)
{
    *out << '"' << reading.text.substr(0, 12) << '"';
}

class ColorText : public testing::TestWithParam<Reading>
{
};

TEST_P(ColorText, IsReadAsANumber)
{
    const RgbaColor color = ColorFromText(GetParam().text);
    EXPECT_EQ(color.red << 24u | color.green << 16u | color.blue << 8u | color.alpha, GetParam().number);
}

INSTANTIATE_TEST_SUITE_P(Texts, ColorText,
                         testing::Values(Reading{"ff0000ff", 0xff0000ff}, Reading{"FF0000FF", 0xff0000ff},
                                         Reading{"0xff0000ff", 0xff0000ff}, Reading{"0XfF0000Ff", 0xff0000ff},
                                         Reading{"0xFF0000FF", 0xff0000ff}, Reading{"0x/", 0}, Reading{"0x:", 0},
                                         Reading{"0x@", 0}, Reading{"0xG", 0}, Reading{"0x`", 0},
                                         Reading{"ff0000ffzz", 0xff0000ff}, Reading{"ff", 0x000000ff},
                                         Reading{"-1", 0xffffffff}, Reading{"-ffffffff", 0x00000001}, Reading{"+ff", 0xff},
                                         Reading{" \t\n\v\f\rff", 0xff}, Reading{"0x", 0}, Reading{"0xg", 0},
                                         Reading{"0x0x1", 0}, Reading{"-0x1", 0xffffffff}, Reading{"+0xff", 0xff},
                                         Reading{"0", 0}, Reading{"12345678", 0x12345678}, Reading{"ffffffff", 0xffffffff},
                                         Reading{std::string(1000, '0') + "ff", 0xff}, Reading{"ff ff", 0xff},
                                         Reading{std::string("ff\0ff", 5), 0xff}));

TEST(RgbaColor, TextWithoutDigitsIsRefused)
{
    for (const char* text : {"", " ", "g", "- 1", "#ff", "+-1", "--1", "-", "x1", "-g"})
    {
        try
        {
            ColorFromText(text);
            ADD_FAILURE() << text;
        }
        catch (const std::invalid_argument& failure)
        {
            EXPECT_STREQ(failure.what(), "invalid stoul argument") << text;
        }
    }
}

TEST(RgbaColor, NumbersOver32BitsAreRefused)
{
    for (const char* text : {"1ff0000ff", "100000000", "-100000000", "0x100000000", "ffffffffffffffffffffffff"})
    {
        try
        {
            ColorFromText(text);
            ADD_FAILURE() << text;
        }
        catch (const std::out_of_range& failure)
        {
            EXPECT_STREQ(failure.what(), "stoul argument out of range") << text;
        }
    }
}

TEST(RgbaColor, IsWrittenAsEightLowercaseDigits)
{
    EXPECT_EQ(ToText({255, 0, 0, 255}), "ff0000ff");
    EXPECT_EQ(ToText({0x01, 0xab, 0x0c, 0}), "01ab0c00");
}

TEST(RgbaColor, IsOpaqueBlackByDefault)
{
    EXPECT_EQ(RgbaColor(), (RgbaColor{0, 0, 0, 255}));
    EXPECT_FALSE(RgbaColor() == (RgbaColor{0, 0, 0, 254}));
    static_assert(sizeof(RgbaColor) == 4);
}

TEST(RgbaColor, IsReadTheSameUnderAnyLocale)
{
    struct Strange : std::numpunct<char>
    {
        char do_decimal_point() const override { return 'f'; }
        char do_thousands_sep() const override { return '0'; }
        std::string do_grouping() const override { return "\1"; }
    };
    const std::locale before = std::locale::global(std::locale(std::locale::classic(), new Strange));
    const RgbaColor color = ColorFromText("ff0000ff");
    const std::string text = ToText(color);
    std::locale::global(before);
    EXPECT_EQ(color, (RgbaColor{255, 0, 0, 255}));
    EXPECT_EQ(text, "ff0000ff");
}

using Gradient = std::map<std::uint8_t, RgbaColor>;
using GradientCodec = Ombrel::Proc::Codec<Gradient>;
using Ombrel::PropertyTree;
using Support::List;
using Support::Map;

constexpr Ombrel::Proc::WriteFlags WRITE{.resetTargets = false, .omitDefaults = true};
constexpr Ombrel::Proc::ReadFlags READ{.resetMissing = true};

TEST(ColorMap, IsAListOfMapsInAscendingOrder)
{
    PropertyTree tree = Map({{"stale", 1}});
    GradientCodec::Write(tree, {{200, {1, 2, 3, 4}}, {10, {255, 0, 0, 255}}}, &WRITE);
    EXPECT_EQ(tree, List({Map({{"key", 10}, {"value", "ff0000ff"}}), Map({{"key", 200}, {"value", "01020304"}})}));
}

TEST(ColorMap, KeepsWhatTheListDoesNotNameAndTakesTheLaterOfTwo)
{
    Gradient gradient{{1, {9, 9, 9, 9}}, {10, {8, 8, 8, 8}}};
    GradientCodec::Read(List({Map({{"key", 10}, {"value", "01010101"}}), Map({{"key", 266}, {"value", "ff"}})}), gradient,
                        &READ);
    EXPECT_EQ(gradient, (Gradient{{1, {9, 9, 9, 9}}, {10, {0, 0, 0, 255}}}));
}

TEST(ColorMap, AnythingButAListIsPassedOver)
{
    for (const PropertyTree& tree : {PropertyTree(), PropertyTree(5), Map({{"key", 1}}), List({})})
    {
        Gradient gradient{{1, {9, 9, 9, 9}}};
        GradientCodec::Read(tree, gradient, &READ);
        EXPECT_EQ(gradient.size(), 1u);
    }
}

TEST(ColorMap, AnElementNeedsBothParts)
{
    Gradient gradient;
    const PropertyTree first = Map({{"key", 1}, {"value", "ff"}});
    EXPECT_THROW(GradientCodec::Read(List({first, Map({{"key", 2}})}), gradient, &READ), std::out_of_range);
    EXPECT_EQ(gradient, (Gradient{{1, {0, 0, 0, 255}}})); // what stood before the failure is there
    EXPECT_THROW(GradientCodec::Read(List({Map({{"value", "ff"}})}), gradient, &READ), std::out_of_range);
    EXPECT_THROW(GradientCodec::Read(List({Map({{"key", 3}, {"value", "no colour"}})}), gradient, &READ),
                 std::invalid_argument);
    EXPECT_THROW(GradientCodec::Read(List({5}), gradient, &READ), std::invalid_argument);
    EXPECT_EQ(gradient.size(), 1u);
}

TEST(ColorCodec, TakesStringScalarsOnly)
{
    using ColorCodec = Ombrel::Proc::Codec<RgbaColor>;
    RgbaColor color;
    ColorCodec::Read("FF0000FF", color, &READ);
    PropertyTree tree;
    ColorCodec::Write(tree, color, &WRITE);
    EXPECT_EQ(tree, PropertyTree("ff0000ff"));

    ColorCodec::Read(std::string("ab\0cd", 5), color, &READ);
    EXPECT_EQ(color, (RgbaColor{0, 0, 0, 0xab}));
    EXPECT_THROW(ColorCodec::Read(5, color, &READ), std::invalid_argument);
    EXPECT_THROW(ColorCodec::Read(Map({}), color, &READ), std::invalid_argument);
    EXPECT_EQ(color, (RgbaColor{0, 0, 0, 0xab}));
}

} // namespace
