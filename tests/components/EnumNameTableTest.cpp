#include "Proc/Reflection/EnumNameTable.h"

#include <gtest/gtest.h>

namespace
{

using Ombrel::Proc::EnumNameRow;
using Ombrel::Proc::EnumNameTable;

enum class Channel : std::int32_t
{
    Red = 1,
    Green = 2,
    Blue = 4,
    Alpha = 8,
};

constexpr EnumNameRow ROWS[] = {
    {"Red", Channel::Red}, {"Green", Channel::Green}, {"Blue", Channel::Blue}, {"Alpha", Channel::Alpha}};
constexpr EnumNameTable TABLE{ROWS};

TEST(EnumNameTable, WorksInBothDirections)
{
    EXPECT_EQ(TABLE.ValueOf("Red"), 1);
    EXPECT_EQ(TABLE.ValueOf("Alpha"), 8);
    EXPECT_EQ(TABLE.NameOf(2), "Green");
    EXPECT_EQ(TABLE.NameOf(4), "Blue");
}

TEST(EnumNameTable, FallsBackToZeroAlsoWhereZeroHasNoName)
{
    EXPECT_EQ(TABLE.ValueOf("nonsense"), 0);
    EXPECT_EQ(TABLE.ValueOf(""), 0);
    EXPECT_EQ(TABLE.NameOf(0), "");
    EXPECT_EQ(TABLE.NameOf(3), "");
}

TEST(EnumNameTable, FallsBackToWhatItSays)
{
    constexpr EnumNameTable table{ROWS, 8};
    EXPECT_EQ(table.ValueOf("nonsense"), 8);
    EXPECT_EQ(table.ValueOf("Red"), 1);
}

TEST(EnumNameTable, NamesAreExactInLengthAndCase)
{
    for (const char* name : {"red", "RED", "Red ", " Red", "Re", "Redd"})
    {
        EXPECT_EQ(TABLE.ValueOf(name), 0) << name;
    }
    EXPECT_EQ(TABLE.ValueOf(std::string_view("Red\0", 4)), 0);
}

} // namespace
