#include "PropertyTree/PropertyTreeScalar.h"

#include "PropertyTree/PropertyTreeOutput.h" // shows a scalar in a failed expectation

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>
#include <string_view>
#include <type_traits>
#include <vector>

namespace
{

using Ombrel::PropertyTreeScalar;
using Kind = PropertyTreeScalar::Kind;

template <class Failure, class Call> std::string MessageOf(Call call)
{
    try
    {
        call();
    }
    catch (const Failure& failure)
    {
        return failure.what();
    }
    return "nothing was thrown";
}

TEST(PropertyTreeScalar, NumbersHaveTheirKindNumbers)
{
    EXPECT_EQ(static_cast<int>(PropertyTreeScalar(5).kind()), 2);
    EXPECT_EQ(static_cast<int>(PropertyTreeScalar(5.0).kind()), 3);
}

TEST(PropertyTreeScalar, ConstructorsTellTheKinds)
{
    EXPECT_EQ(PropertyTreeScalar(true).kind(), Kind::Bool);
    EXPECT_EQ(PropertyTreeScalar(std::int32_t{1}).kind(), Kind::Integer);
    EXPECT_EQ(PropertyTreeScalar(std::uint8_t{1}).kind(), Kind::Integer);
    EXPECT_EQ(PropertyTreeScalar(std::uint64_t{1}).kind(), Kind::Integer);
    EXPECT_EQ(PropertyTreeScalar(1.0f).kind(), Kind::Float);
    EXPECT_EQ(PropertyTreeScalar(std::string("a")).kind(), Kind::String);
    EXPECT_EQ(PropertyTreeScalar("a text is no bool").kind(), Kind::String);
}

TEST(PropertyTreeScalar, IntegersAreWidenedBySign)
{
    EXPECT_EQ(PropertyTreeScalar(std::int32_t{-1}).toInt(), -1);
    EXPECT_EQ(PropertyTreeScalar(std::uint32_t{4294967295}).toInt(), 4294967295);
    EXPECT_EQ(PropertyTreeScalar(std::uint8_t{255}).toInt(), 255);
    EXPECT_EQ(PropertyTreeScalar(std::uint64_t{18446744073709551615u}).toInt(), -1);
    EXPECT_EQ(PropertyTreeScalar(std::numeric_limits<std::int64_t>::min()).toInt(), std::numeric_limits<std::int64_t>::min());
}

TEST(PropertyTreeScalar, NumbersConvertIntoEachOther)
{
    EXPECT_EQ(PropertyTreeScalar(5).toDouble(), 5.0);
    EXPECT_EQ(PropertyTreeScalar(2.7).toInt(), 2);
    EXPECT_EQ(PropertyTreeScalar(-2.7).toInt(), -2);
    EXPECT_EQ(PropertyTreeScalar(-9223372036854775808.0).toInt(), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(PropertyTreeScalar(9223372036854774784.0).toInt(), 9223372036854774784);
}

TEST(PropertyTreeScalar, FloatsThatDoNotFitAreRefused)
{
    for (const double value : {9223372036854775808.0, -9223372036854777856.0, 1e300, HUGE_VAL, -HUGE_VAL, std::nan("")})
    {
        EXPECT_THROW(PropertyTreeScalar(value).toInt(), std::out_of_range) << value;
    }
}

TEST(PropertyTreeScalar, OtherMixesNameBothKinds)
{
    EXPECT_EQ(MessageOf<std::invalid_argument>([] { PropertyTreeScalar("5").toInt(); }),
              "scalar: expected a number, found a string");
    EXPECT_EQ(MessageOf<std::invalid_argument>([] { PropertyTreeScalar(true).toDouble(); }),
              "scalar: expected a number, found a bool");
    EXPECT_EQ(MessageOf<std::invalid_argument>([] { PropertyTreeScalar(5).toString(); }),
              "scalar: expected a string, found an integer");
    EXPECT_EQ(MessageOf<std::invalid_argument>([] { PropertyTreeScalar(5.0).toCString(); }),
              "scalar: expected a string, found a float");
}

TEST(PropertyTreeScalar, ARefusedConversionChangesNothing)
{
    bool flag = true;
    EXPECT_THROW(PropertyTreeScalar(0).convertTo(flag), std::invalid_argument);
    EXPECT_TRUE(flag);

    std::string text = "before";
    EXPECT_THROW(PropertyTreeScalar(false).convertTo(text), std::invalid_argument);
    EXPECT_EQ(text, "before");
}

TEST(PropertyTreeScalar, ConvertsToItsOwnKind)
{
    bool flag = false;
    PropertyTreeScalar(true).convertTo(flag);
    EXPECT_TRUE(flag);

    std::string text;
    PropertyTreeScalar("a text").convertTo(text);
    EXPECT_EQ(text, "a text");
}

TEST(PropertyTreeScalar, ToStringLivesAsLongAsTheScalar)
{
    const PropertyTreeScalar scalar(std::string(100, 'x'));
    const std::string& text = scalar.toString();
    EXPECT_EQ(&text, &scalar.toString());
    EXPECT_EQ(text, std::string(100, 'x'));
    EXPECT_EQ(scalar.toCString(), text.c_str());
}

TEST(PropertyTreeScalar, StringsKeepZeros)
{
    const std::string text("a\0b", 3);
    EXPECT_EQ(PropertyTreeScalar(text).toString(), text);
    EXPECT_STREQ(PropertyTreeScalar(text).toCString(), "a");
}

TEST(PropertyTreeScalar, EqualityLooksAtKindAndValue)
{
    EXPECT_EQ(PropertyTreeScalar(1), PropertyTreeScalar(1));
    EXPECT_FALSE(PropertyTreeScalar(1) == PropertyTreeScalar(1.0));
    EXPECT_FALSE(PropertyTreeScalar(1) == PropertyTreeScalar(true));
    EXPECT_EQ(PropertyTreeScalar(0.0), PropertyTreeScalar(-0.0));
    EXPECT_FALSE(PropertyTreeScalar(std::nan("")) == PropertyTreeScalar(std::nan("")));
}

TEST(PropertyTreeScalar, EveryKindIsAssignedToEveryKind)
{
    const std::string text(100, 'x');
    const PropertyTreeScalar scalars[] = {true, 5, 2.5, "short", text};
    for (const PropertyTreeScalar& source : scalars)
    {
        for (PropertyTreeScalar target : scalars)
        {
            target = source;
            EXPECT_EQ(target, source);
            PropertyTreeScalar& self = target;
            target = std::as_const(self);
            EXPECT_EQ(target, source);
            target = std::move(self);
            EXPECT_EQ(target, source);
            PropertyTreeScalar moved = std::move(target);
            EXPECT_EQ(moved, source);
            target = std::move(moved);
            EXPECT_EQ(target, source);
        }
    }
    static_assert(std::is_nothrow_move_constructible_v<PropertyTreeScalar>);
    static_assert(std::is_nothrow_move_assignable_v<PropertyTreeScalar>);
}

TEST(PropertyTreeScalar, WhatIsABoolMakesABool)
{
    std::vector<bool> flags{true, false};
    const std::vector<bool>& constantFlags = flags;
    const PropertyTreeScalar expected[] = {flags[0],         flags[1],          constantFlags[0],
                                           std::true_type(), std::false_type(), std::is_same<int, int>()};
    const bool values[] = {true, false, true, true, false, true};
    for (std::size_t i = 0; i < std::size(values); ++i)
    {
        EXPECT_EQ(expected[i].kind(), Kind::Bool) << i;
        EXPECT_EQ(expected[i], PropertyTreeScalar(values[i])) << i;
    }
    PropertyTreeScalar assigned = 5;
    assigned = flags[0];
    EXPECT_EQ(assigned, PropertyTreeScalar(true));
}

TEST(PropertyTreeScalar, AStringViewMakesAString)
{
    const std::string_view text = std::string_view("a text and more").substr(0, 6);
    EXPECT_EQ(PropertyTreeScalar(text), PropertyTreeScalar("a text"));
    EXPECT_EQ(PropertyTreeScalar(std::string_view()), PropertyTreeScalar(""));
    PropertyTreeScalar assigned = 5;
    assigned = text;
    EXPECT_EQ(assigned.toString(), "a text");
}

TEST(PropertyTreeScalar, SignedAndUnsignedCharAreIntegers)
{
    EXPECT_EQ(PropertyTreeScalar(static_cast<signed char>(-1)), PropertyTreeScalar(-1));
    EXPECT_EQ(PropertyTreeScalar(static_cast<unsigned char>(255)), PropertyTreeScalar(255));
}

TEST(PropertyTreeScalar, CharactersMakeNoScalar)
{
    static_assert(!std::is_constructible_v<PropertyTreeScalar, char> && !std::is_assignable_v<PropertyTreeScalar&, char>);
    static_assert(!std::is_constructible_v<PropertyTreeScalar, wchar_t> && !std::is_assignable_v<PropertyTreeScalar&, wchar_t>);
    static_assert(!std::is_constructible_v<PropertyTreeScalar, char8_t> && !std::is_assignable_v<PropertyTreeScalar&, char8_t>);
    static_assert(!std::is_constructible_v<PropertyTreeScalar, char16_t>);
    static_assert(!std::is_constructible_v<PropertyTreeScalar, char32_t>);
    static_assert(!std::is_constructible_v<PropertyTreeScalar, const char&>);
}

TEST(PropertyTreeScalar, PointersMakeNoScalar)
{
    static_assert(!std::is_constructible_v<PropertyTreeScalar, std::nullptr_t>);
    static_assert(!std::is_constructible_v<PropertyTreeScalar, int*>);
    static_assert(!std::is_constructible_v<PropertyTreeScalar, void*>);
}

} // namespace
