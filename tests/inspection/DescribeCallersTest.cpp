#include "Inspection/Describe.h"
#include "PropertyTreeJson/PropertyTreeJson.h"

#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Reflection/Folds.h"
#include "Proc/Settings/BaseSettingsNeural.h"
#include "Proc/Settings/SettingsRecord.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

// Classes of a caller's own.
namespace
{

using namespace Ombrel;
using namespace Ombrel::PhotoCore;
using namespace Ombrel::Inspection;

// A record that holds itself, with another of the same name, and pairs of two kinds.
struct Branch
{
    static const Proc::RecordSchema& Schema() noexcept
    {
        using namespace Proc;
        using R = Branch;
        return Proc::Describe<R, FieldList<FieldDescriptor<&R::m_branches>, FieldDescriptor<&R::m_ends>>>();
    }

    bool operator==(const Branch& other) const { return m_branches == other.m_branches && m_ends == other.m_ends; }

    std::vector<Branch> m_branches;
    std::pair<double, double> m_ends{1.0, 2.0};
};

namespace Other
{
struct Branch
{
    static const Proc::RecordSchema& Schema() noexcept
    {
        using namespace Proc;
        return Proc::Describe<Branch, FieldList<FieldDescriptor<&Branch::m_sizes>>>();
    }

    bool operator==(const Branch&) const { return true; }

    std::pair<bool, bool> m_sizes;
};
} // namespace Other

struct Odd
{
    std::int32_t value = 0;

    bool operator==(const Odd&) const = default;
};

struct Tree : Proc::SettingsRecord<Tree, Proc::BaseSettingsNeural>
{
    static constexpr const char* CLASS_NAME = "EFFECT_DESCRIBED_TREE";
    static const std::string CLASS_ID;

    static const Proc::RecordSchema& Schema() noexcept;

    bool operator==(const Tree& other) const
    {
        return m_root == other.m_root && m_other == other.m_other && m_odd == other.m_odd;
    }

    void SetHalf(std::int32_t value) { m_half = value / 2; }
    std::int32_t GetHalf() const { return m_half; }

    Branch m_root;
    Other::Branch m_other;
    Odd m_odd;
    std::int32_t m_half = 0;
};

} // namespace

// A form that only its own code knows.
template <> struct Ombrel::Proc::Codec<Odd>
{
    static void Write(PropertyTree& child, const Odd& value, const WriteFlags*) { child = value.value; }
    static void Read(const PropertyTree& child, Odd& value, const ReadFlags*)
    {
        value.value = static_cast<std::int32_t>(child.getScalar().toInt());
    }
};

namespace
{

const std::string Tree::CLASS_ID{CLASS_NAME};

const Proc::RecordSchema& Tree::Schema() noexcept
{
    using namespace Proc;
    using R = Tree;
    return Proc::Describe<R, FieldList<FieldDescriptor<&R::m_root>, FieldDescriptor<&R::m_other>, FieldDescriptor<&R::m_odd>,
                                       AccessorDescriptor<"half", &R::SetHalf, &R::GetHalf>>>();
}

class TreeSettings : public EffectSettingsTwoInputReflection<Tree, TreeSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;
};

// All of its code fails.
struct Broken : Proc::SettingsRecord<Broken>
{
    static constexpr const char* CLASS_NAME = "EFFECT_DESCRIBED_BROKEN";
    static const std::string CLASS_ID;

    static const Proc::RecordSchema& Schema() noexcept
    {
        using namespace Proc;
        return Proc::Describe<Broken, FieldList<AccessorDescriptor<"value", &Broken::SetValue, &Broken::GetValue>>>();
    }

    bool operator==(const Broken&) const { throw std::runtime_error("no comparison"); }

    void SetValue(std::int32_t) { throw 1; }
    std::int32_t GetValue() const { throw std::runtime_error("no value"); }
};

const std::string Broken::CLASS_ID{CLASS_NAME};

class BrokenSettings : public EffectSettingsOneInputReflection<Broken, BrokenSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;
};

class UnlistedSettings : public EffectSettingsVarInput<Tree, UnlistedSettings>
{
public:
    using EffectSettingsInput::EffectSettingsInput;
};

TEST(DescribeCallers, ARecordThatHoldsItselfIsDescribedOnce)
{
    RegisterEffectClass<TreeSettings>();
    const auto tree = Inspection::Describe("EFFECT_DESCRIBED_TREE");
    ASSERT_TRUE(tree);
    EXPECT_EQ(tree->className, "TreeSettings");
    EXPECT_EQ(tree->inputs, IEffectSettings::InputType::Two);
    ASSERT_EQ(tree->fields.size(), 6U);
    EXPECT_EQ(TextOf(tree->fields[2].value), "Branch");
    EXPECT_EQ(TextOf(tree->fields[3].value), "Branch2");
    EXPECT_EQ(TextOf(tree->fields[4].value), "other");
    EXPECT_EQ(WriteJson(tree->fields[4].defaultValue), "0");
    EXPECT_EQ(tree->fields[2].isCompared, true);
    EXPECT_EQ(tree->fields[3].isCompared, false);
    EXPECT_EQ(tree->fields[4].isCompared, true);
    EXPECT_EQ(tree->fields[5].isCompared, false);
    EXPECT_TRUE(tree->fields[5].isComputed);

    ASSERT_EQ(tree->records.size(), 5U);
    EXPECT_EQ(tree->records[1].name, "Branch");
    EXPECT_EQ(TextOf(tree->records[1].fields[0].value), "list of Branch");
    EXPECT_EQ(tree->records[1].fields[0].isCompared, true);
    EXPECT_EQ(TextOf(tree->records[1].fields[1].value), "pair");
    EXPECT_EQ(TextOf(tree->FindRecord("pair")->fields[0].value), "float64");
    EXPECT_EQ(TextOf(tree->records[2].fields[0].value), "pair2");
    EXPECT_EQ(TextOf(tree->FindRecord("pair2")->fields[0].value), "bool");
}

TEST(DescribeCallers, AnInheritedMemberWithoutAKeyIsListed)
{
    RegisterEffectClass({"TreeSettings", "EFFECT_DESCRIBED_TREE_2", &TreeSettings::CreateBase, &TreeSettings::GetSchema,
                         TreeSettings::GetStoredSource(), Registration::Factory});
    const auto tree = Inspection::Describe("EFFECT_DESCRIBED_TREE_2");
    ASSERT_EQ(tree->members.size(), 6U);
    EXPECT_EQ(tree->members[5].member, "neuralMode");
}

TEST(DescribeCallers, WhatFailsIsLeftOpen)
{
    RegisterEffectClass<BrokenSettings>();
    const auto broken = Inspection::Describe("EFFECT_DESCRIBED_BROKEN");
    ASSERT_TRUE(broken);
    ASSERT_EQ(broken->fields.size(), 3U);
    EXPECT_EQ(TextOf(broken->fields[2].value), "int32");
    EXPECT_TRUE(broken->fields[2].defaultValue.isNull());
    EXPECT_EQ(broken->fields[2].isCompared, std::nullopt);

    IEffectSettings::RegisterFactory("EFFECT_DESCRIBED_NULL", []() -> std::shared_ptr<IEffectSettings> { return nullptr; });
    IEffectSettings::RegisterFactory("EFFECT_DESCRIBED_THROWS", []() -> std::shared_ptr<IEffectSettings> { throw 1; });
    EXPECT_EQ(Inspection::Describe("EFFECT_DESCRIBED_NULL")->inputs, std::nullopt);
    EXPECT_EQ(Inspection::Describe("EFFECT_DESCRIBED_THROWS")->inputs, std::nullopt);
}

TEST(DescribeCallers, WithoutASchemaTheKeysAreNotKnown)
{
    IEffectSettings::RegisterFactory("EFFECT_DESCRIBED_FACTORY", &TreeSettings::CreateBase);
    const auto factory = Inspection::Describe("EFFECT_DESCRIBED_FACTORY");
    ASSERT_TRUE(factory);
    EXPECT_EQ(factory->className, "");
    EXPECT_TRUE(factory->isRegistered);
    EXPECT_FALSE(factory->areKeysKnown);
    EXPECT_EQ(factory->inputs, IEffectSettings::InputType::Two);
    EXPECT_EQ(factory->fields.size(), 2U);

    RegisterEffectClass({"UnlistedSettings", "EFFECT_DESCRIBED_UNLISTED", &UnlistedSettings::CreateBase,
                         &UnlistedSettings::GetSchema, UnlistedSettings::GetStoredSource(), Registration::Factory});
    const auto unlisted = Inspection::Describe("EFFECT_DESCRIBED_UNLISTED");
    ASSERT_TRUE(unlisted);
    EXPECT_EQ(unlisted->className, "UnlistedSettings");
    EXPECT_FALSE(unlisted->areKeysKnown);
    EXPECT_EQ(unlisted->inputs, IEffectSettings::InputType::Var);
}

} // namespace
