#include "Proc/Reflection/PropertyAccess.h"

#include "Samples.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

namespace
{

using namespace Samples;
using Ombrel::PropertyTree;
using Ombrel::Proc::PropertyAccessImpl;
using Support::List;
using Support::Map;

TEST(PropertyAccess, GetsDefaultsInFullForm)
{
    Everything record;
    const PropertyAccessImpl<Everything> access(&record);
    EXPECT_EQ(access.GetProperty("int32"), PropertyTree(1));
    EXPECT_EQ(access.GetProperty("record"), Map({{"point", Map({{"x", 7}, {"y", 8}})}}));
    EXPECT_EQ(access.GetProperty("points"), List({}));
}

TEST(PropertyAccess, AnUnknownKeyIsANullTree)
{
    Everything record;
    const PropertyAccessImpl<Everything> access(&record);
    EXPECT_TRUE(access.GetProperty("radius").isNull());
    EXPECT_TRUE(access.GetProperty("point").isNull()); // nested keys are no properties
    EXPECT_TRUE(access.GetProperty("").isNull());
}

TEST(PropertyAccess, SetsOneKeyAndLeavesTheOthers)
{
    Everything record;
    record.m_int64 = 99;
    PropertyAccessImpl<Everything> access(&record);
    access.SetProperty("uint8", 300);
    EXPECT_EQ(record.m_uint8, 44);
    EXPECT_EQ(record.m_int64, 99);

    access.SetProperty("record", Map({{"point", Map({{"y", 5}})}}));
    EXPECT_EQ(record.m_record.m_point, (Point{7, 5}));
}

TEST(PropertyAccess, AnUnknownKeyChangesNothing)
{
    Everything record;
    PropertyAccessImpl<Everything> access(&record);
    access.SetProperty("radius", Map({}));
    access.SetProperty("", 1);
    EXPECT_EQ(TreeOf(record), Map({}));
}

TEST(PropertyAccess, PassesFailuresOn)
{
    Everything record;
    PropertyAccessImpl<Everything> access(&record);
    EXPECT_THROW(access.SetProperty("bool", 1), std::invalid_argument);
    EXPECT_TRUE(record.m_bool);
}

TEST(PropertyAccess, ListsTheKeysInByteOrder)
{
    Everything record;
    const PropertyAccessImpl<Everything> access(&record);
    const std::vector<std::string> keys{"bool",   "channels", "enum", "float32", "float64", "int32",  "int64",  "pair",
                                        "points", "record",   "rows", "set",     "string",  "uint32", "uint64", "uint8"};
    EXPECT_EQ(access.ListProperties(), keys);
}

TEST(PropertyAccess, SeesWhatTheGetterSays)
{
    Properties record;
    PropertyAccessImpl<Properties> access(&record);
    access.SetProperty("value", 500);
    EXPECT_EQ(access.GetProperty("value"), PropertyTree(100));
    EXPECT_EQ(record.m_calls, 1);
}

struct RadiusAndSigma
{
    double m_radius = 0.0;
    double m_sigma = 0.0;
};

struct SigmaAndAlpha
{
    double m_sigma = 0.0;
    double m_alpha = 0.0;
};

} // namespace

namespace Ombrel::Proc
{

template <> struct Fields<RadiusAndSigma>
{
    using List = FieldList<FieldDescriptor<&RadiusAndSigma::m_radius>, FieldDescriptor<&RadiusAndSigma::m_sigma>>;
};

template <> struct Fields<SigmaAndAlpha>
{
    using List = FieldList<FieldDescriptor<&SigmaAndAlpha::m_sigma>, FieldDescriptor<&SigmaAndAlpha::m_alpha>>;
};

} // namespace Ombrel::Proc

namespace
{

TEST(PropertyAccess, OrderOfDeclarationPlaysNoPart)
{
    RadiusAndSigma first;
    SigmaAndAlpha second;
    EXPECT_EQ(PropertyAccessImpl<RadiusAndSigma>(&first).ListProperties(), (std::vector<std::string>{"radius", "sigma"}));
    EXPECT_EQ(PropertyAccessImpl<SigmaAndAlpha>(&second).ListProperties(), (std::vector<std::string>{"alpha", "sigma"}));
}

} // namespace
