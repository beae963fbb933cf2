#include "Proc/Settings/SettingsEffectCompose.h"

#include "Proc/Reflection/Reflected.h"
#include "Proc/Settings/SettingsEffectAcid.h"
#include "support/CompositeOperators.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <typeinfo>

namespace
{

using Ombrel::PropertyTree;
using Ombrel::Proc::SettingsEffectCompose;
using Operator = SettingsEffectCompose::CompositeOperator;
using Support::List;
using Support::Map;

// The record stands in those of effects: it is read and written as their members are.
SettingsEffectCompose Read(const PropertyTree& tree, SettingsEffectCompose record = {})
{
    constexpr Ombrel::Proc::ReadFlags flags{.resetMissing = true};
    Ombrel::Proc::Codec<SettingsEffectCompose>::Read(tree, record, &flags);
    return record;
}

PropertyTree Written(const SettingsEffectCompose& record)
{
    constexpr Ombrel::Proc::WriteFlags flags{.resetTargets = true, .omitDefaults = true};
    PropertyTree tree;
    Ombrel::Proc::Codec<SettingsEffectCompose>::Write(tree, record, &flags);
    return tree;
}

SettingsEffectCompose With(std::int32_t number)
{
    SettingsEffectCompose record;
    record.m_operator = static_cast<Operator>(number);
    return record;
}

TEST(Compose, HasNoOperatorByDefault)
{
    const SettingsEffectCompose record;
    EXPECT_EQ(record.m_operator, Operator::UndefinedCompositeOp);
    EXPECT_EQ(static_cast<std::int32_t>(record.m_operator), -1);
    EXPECT_EQ(SettingsEffectCompose::CLASS_ID, "EFFECT_COMPOSE");
    EXPECT_EQ(record.GetClassId(), "EFFECT_COMPOSE");
    EXPECT_FALSE(record.IsEmpty());
    EXPECT_EQ(Written(record), Map({}));
}

TEST(Compose, EveryNameHasItsNumber)
{
    for (const Support::OperatorName& row : Support::COMPOSITE_OPERATORS)
    {
        const std::string name(row.name);
        EXPECT_EQ(static_cast<std::int32_t>(Read(Map({{"operator", name}})).m_operator), row.number) << name;
        const PropertyTree expected = row.number == -1 ? Map({}) : Map({{"operator", name}});
        EXPECT_EQ(Written(With(row.number)), expected) << name;
    }
}

TEST(Compose, TheDefaultHasANameToo)
{
    EXPECT_EQ(Read(Map({{"operator", "UndefinedCompositeOp"}}), With(8)).m_operator, Operator::UndefinedCompositeOp);
    constexpr Ombrel::Proc::WriteFlags flags{.resetTargets = true, .omitDefaults = false};
    PropertyTree tree;
    Ombrel::Proc::Codec<SettingsEffectCompose>::Write(tree, SettingsEffectCompose(), &flags);
    EXPECT_EQ(tree, Map({{"operator", "UndefinedCompositeOp"}}));
}

TEST(Compose, WhatIsNoNameIsNoOperatorAndNotTheDefault)
{
    for (const PropertyTree& unknown :
         {PropertyTree("nonsense"), PropertyTree("overCompositeOp"), PropertyTree(""), List({}), Map({}), PropertyTree()})
    {
        const SettingsEffectCompose record = Read(Map({{"operator", unknown}}), With(8));
        EXPECT_EQ(record.m_operator, Operator::NoCompositeOp) << testing::PrintToString(unknown);
        EXPECT_EQ(Written(record), Map({{"operator", "NoCompositeOp"}}));
    }
}

TEST(Compose, ANumberWithoutANameIsStoredAsNone)
{
    EXPECT_EQ(Written(With(68)), Map({{"operator", ""}}));
    EXPECT_EQ(Written(With(-2)), Map({{"operator", ""}}));
}

TEST(Compose, AMissingKeyIsTheDefault)
{
    EXPECT_EQ(Read(Map({}), With(8)).m_operator, Operator::UndefinedCompositeOp);
}

TEST(Compose, ComparesItsOperator)
{
    const SettingsEffectCompose record = With(8);
    EXPECT_TRUE(record == With(8));
    EXPECT_FALSE(record == With(9));
    EXPECT_TRUE(record.IsEqualTo(With(8)));
    EXPECT_FALSE(record.IsEqualTo(SettingsEffectCompose()));
    EXPECT_THROW(record.IsEqualTo(Ombrel::Proc::SettingsEffectAcid()), std::bad_cast);

    const std::unique_ptr<Ombrel::Proc::Settings> clone(record.Clone());
    EXPECT_TRUE(record.IsEqualTo(*clone));
}

} // namespace
