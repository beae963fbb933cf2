#include "Proc/EffectSettings/HelperSettings.h"

#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <typeinfo>

namespace
{

using Ombrel::PropertyTree;
using Ombrel::PhotoCore::HelperSettings;
using Flag = HelperSettings::ApplySetting;
using Support::List;
using Support::Map;

PropertyTree TreeOf(const HelperSettings& settings)
{
    PropertyTree tree("what stood there before");
    settings.Serialize(tree);
    return tree;
}

TEST(HelperSettings, DefaultsAreTold)
{
    const HelperSettings settings;
    EXPECT_FALSE(settings.GetUndoSet());
    EXPECT_TRUE(settings.GetApplyMode().empty());
    EXPECT_EQ(settings.GetMaxWidth(), 4294967295u);
    EXPECT_EQ(settings.GetMaxHeight(), 4294967295u);
    EXPECT_EQ(TreeOf(settings), Map({}));
    EXPECT_EQ(settings.GetClassId(), "HelperSettings");
}

TEST(HelperSettings, FlagsAreSetAndErased)
{
    HelperSettings settings;
    settings.SetApplyModeFlag(Flag::ApplyStop, true);
    settings.SetApplyModeFlag(Flag::ApplyToAlpha, true);
    settings.SetApplyModeFlag(Flag::ApplyStop, true);
    EXPECT_TRUE(settings.HasApplyModeFlag(Flag::ApplyStop));
    settings.SetApplyModeFlag(Flag::ApplyStop, false);
    settings.SetApplyModeFlag(Flag::Invalid, false);
    EXPECT_FALSE(settings.HasApplyModeFlag(Flag::ApplyStop));
    EXPECT_EQ(settings.GetApplyMode(), (std::set<Flag>{Flag::ApplyToAlpha}));
    settings.SetApplyMode({Flag::Invalid});
    EXPECT_EQ(settings.GetApplyMode(), (std::set<Flag>{Flag::Invalid}));
}

TEST(HelperSettings, WritesWhatDiffersAndReadsItBack)
{
    HelperSettings settings;
    settings.SetUndoSet(true);
    settings.SetApplyMode({Flag::ApplyAndAddToUndo, Flag::ApplyToMaskOnly});
    settings.SetMaxWidth(0);
    settings.SetMaxHeight(4000000000);
    const PropertyTree tree = Map({{"undoSet", true},
                                   {"applyMode", List({"ApplyToMaskOnly", "ApplyAndAddToUndo"})},
                                   {"maxWidth", 0},
                                   {"maxHeight", 4000000000}});
    EXPECT_EQ(TreeOf(settings), tree);

    HelperSettings restored;
    restored.Deserialize(tree);
    EXPECT_TRUE(restored == settings);
    restored.Deserialize(Map({}));
    EXPECT_TRUE(restored == HelperSettings());
}

TEST(HelperSettings, SerializeReplacesWhatTheTreeHeld)
{
    PropertyTree tree = Map({{"stray", 1}, {"undoSet", true}});
    HelperSettings().Serialize(tree);
    EXPECT_EQ(tree, Map({}));
}

TEST(HelperSettings, KnowsTheNamesOfItsFlags)
{
    constexpr std::pair<const char*, int> names[] = {
        {"Invalid", 0},   {"ApplyToMaskOnly", 1}, {"ApplyWithMask", 2},     {"ApplyAndSetMask", 3},
        {"ApplyStop", 4}, {"ApplyToAlpha", 5},    {"ApplyAndAddToUndo", 6},
    };
    for (const auto& [name, value] : names)
    {
        HelperSettings settings;
        settings.Deserialize(Map({{"applyMode", List({name})}}));
        EXPECT_EQ(settings.GetApplyMode(), (std::set<Flag>{static_cast<Flag>(value)})) << name;
        EXPECT_EQ(TreeOf(settings), Map({{"applyMode", List({name})}}));
    }
    HelperSettings settings;
    settings.Deserialize(Map({{"applyMode", List({"applystop", "ApplyStop", "ApplyStop"})}}));
    EXPECT_EQ(settings.GetApplyMode(), (std::set<Flag>{Flag::Invalid, Flag::ApplyStop}));
}

TEST(HelperSettings, EveryValueCountsInTheComparison)
{
    HelperSettings settings;
    settings.SetUndoSet(true);
    EXPECT_FALSE(settings == HelperSettings());
    settings = {};
    settings.SetApplyModeFlag(Flag::ApplyStop, true);
    EXPECT_FALSE(settings == HelperSettings());
    settings = {};
    settings.SetMaxWidth(1);
    EXPECT_FALSE(settings == HelperSettings());
    settings = {};
    settings.SetMaxHeight(1);
    EXPECT_FALSE(settings == HelperSettings());
    settings = {};
    EXPECT_TRUE(settings == HelperSettings());
}

class Other : public Ombrel::PhotoUtil::ISerializable
{
public:
    explicit Other(std::string id) : m_id(std::move(id)) {}

    const std::string& GetClassId() const override { return m_id; }
    void Serialize(PropertyTree&) const override {}
    void Deserialize(const PropertyTree&) override {}

private:
    std::string m_id;
};

TEST(HelperSettings, ComparesAsASerializable)
{
    const HelperSettings settings;
    const Ombrel::PhotoUtil::ISerializable& base = settings;
    EXPECT_TRUE(base == HelperSettings());
    EXPECT_FALSE(base == Other("another id"));
    EXPECT_THROW((void)(base == Other("HelperSettings")), std::bad_cast);
}

// A caller's own, which is equal to everything or to nothing, and counts how often it was asked.
class Answering : public Ombrel::PhotoUtil::ISerializable
{
public:
    explicit Answering(bool answer) : m_answer(answer) {}

    const std::string& GetClassId() const override
    {
        static const std::string classId{"HelperSettings"};
        return classId;
    }

    void Serialize(PropertyTree&) const override {}
    void Deserialize(const PropertyTree&) override {}

    bool operator==(const ISerializable&) const override
    {
        ++m_questions;
        return m_answer;
    }

    int Questions() const { return m_questions; }

private:
    bool m_answer;
    mutable int m_questions = 0;
};

// A `HelperSettings` would throw `std::bad_cast`, since the class ids agree and the classes do not.
TEST(HelperSettings, TheLeftOperandAnswers)
{
    const HelperSettings helper;
    for (const bool answer : {true, false})
    {
        const Answering own(answer);
        const Ombrel::PhotoUtil::ISerializable& base = own;
        EXPECT_EQ(base == helper, answer);
        EXPECT_EQ(base != helper, !answer);
        EXPECT_EQ(own == helper, answer);
        EXPECT_EQ(own != helper, !answer);
        EXPECT_EQ(own.Questions(), 4);

        EXPECT_THROW((void)(helper == own), std::bad_cast);
        EXPECT_THROW((void)(helper == base), std::bad_cast);
        EXPECT_THROW((void)(helper != own), std::bad_cast);
        EXPECT_THROW((void)(helper != base), std::bad_cast);
        EXPECT_EQ(own.Questions(), 4);
    }
}

TEST(HelperSettings, EveryMixOfStaticTypesCompares)
{
    const HelperSettings helper;
    HelperSettings other;
    other.SetUndoSet(true);
    const Ombrel::PhotoUtil::ISerializable& base = helper;
    const Ombrel::PhotoUtil::ISerializable& otherBase = other;
    EXPECT_TRUE(helper == helper);
    EXPECT_TRUE(helper == base);
    EXPECT_TRUE(base == helper);
    EXPECT_TRUE(base == base);
    EXPECT_FALSE(helper != helper);
    EXPECT_FALSE(helper != base);
    EXPECT_FALSE(base != helper);
    EXPECT_FALSE(helper == other);
    EXPECT_FALSE(helper == otherBase);
    EXPECT_FALSE(base == other);
    EXPECT_FALSE(base == otherBase);
    EXPECT_TRUE(helper != other);
    EXPECT_TRUE(helper != otherBase);
    EXPECT_TRUE(base != other);
    EXPECT_TRUE(HelperSettings() == helper) << "a temporary on the left";
}

// A caller's own, which says so.
class Renamed : public HelperSettings
{
public:
    const std::string& GetClassId() const override
    {
        static const std::string classId{"Renamed"};
        return classId;
    }
};

TEST(HelperSettings, OtherClassIdsAreUnequalWhateverTheValues)
{
    const HelperSettings settings;
    const HelperSettings& renamed = Renamed();
    EXPECT_FALSE(settings == renamed);
    EXPECT_FALSE(renamed == settings);
    EXPECT_TRUE(renamed == Renamed());
}

TEST(HelperSettings, HasNoPropertyAccess)
{
    HelperSettings settings;
    EXPECT_FALSE(settings.GetPropertyAccess());
    EXPECT_FALSE(std::as_const(settings).GetPropertyAccess());
}

TEST(HelperSettings, IsMoved)
{
    HelperSettings settings;
    settings.SetApplyMode({Flag::ApplyStop});
    HelperSettings moved = std::move(settings);
    EXPECT_TRUE(moved.HasApplyModeFlag(Flag::ApplyStop));
    HelperSettings assigned;
    assigned = std::move(moved);
    EXPECT_TRUE(assigned.HasApplyModeFlag(Flag::ApplyStop));
}

} // namespace
