#include "ExampleRecord.h"

#include "Proc/Reflection/Reflected.h"
#include "PropertyTree/PropertyTree.h"

#include <gtest/gtest.h>

namespace
{

using namespace Ombrel;
using namespace Ombrel::Proc;

constexpr ReadFlags READ{.resetMissing = true};
constexpr WriteFlags WRITE{.resetTargets = false, .omitDefaults = true};

PropertyTree Stored(const SettingsEffectExample& record)
{
    PropertyTree tree;
    tree.makeMap();
    Reflected<SettingsEffectExample>::Write({record, tree.getMap(), &WRITE});
    return tree;
}

TEST(ExampleRecord, StoresNothingOfItsDefaults)
{
    EXPECT_EQ(Stored({}).getMap().size(), 0U);
}

TEST(ExampleRecord, StoresEachForm)
{
    SettingsEffectExample record;
    record.m_strength = 2.5;
    record.m_shape = SettingsEffectExample::Shape::Round;
    record.m_color = {.red = 255, .green = 0, .blue = 128, .alpha = 255};
    record.m_edge.SetWidth(-3);
    record.SetAngle(200.0);
    PropertyTree expected;
    expected["strength"] = 2.5;
    expected["shape"] = "round";
    expected["color"] = "ff0080ff";
    expected["edge"]["width"] = 0;
    expected["angle"] = 180.0;
    EXPECT_EQ(Stored(record), expected);

    SettingsEffectExample back;
    Reflected<SettingsEffectExample>::Read({back, expected.getMap(), &READ});
    EXPECT_TRUE(back == record);
    EXPECT_FALSE(back == SettingsEffectExample());
}

TEST(ExampleRecord, ReadsThroughItsSetters)
{
    PropertyTree tree;
    tree["edge"]["width"] = -7;
    tree["angle"] = -1000;
    tree["shape"] = "triangle";
    SettingsEffectExample record;
    record.m_strength = 0.0;
    EXPECT_TRUE(record.IsEmpty());
    Reflected<SettingsEffectExample>::Read({record, tree.getMap(), &READ});
    EXPECT_EQ(record.m_edge.GetWidth(), 0);
    EXPECT_EQ(record.GetAngle(), -180.0);
    EXPECT_EQ(record.m_shape, SettingsEffectExample::Shape::Round);
    EXPECT_EQ(record.m_strength, 0.5);
    EXPECT_FALSE(record.IsEmpty());
    EXPECT_EQ(record.GetClassId(), "EFFECT_EXAMPLE");
}

} // namespace
