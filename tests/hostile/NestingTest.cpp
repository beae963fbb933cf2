#include "Proc/EffectSettings/EffectSettings.h"
#include "Proc/Settings/Settings.h"
#include "support/SmallStack.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

// Effects that hold effects: a stored tree must not exhaust the stack of whoever reads it, and as deep as it may be read it
// must be usable.
namespace
{

using namespace Ombrel::PhotoCore;
using Ombrel::PropertyTree;
using Support::List;
using Support::Map;

constexpr int LIMIT = 512;
constexpr const char* REFUSAL = "effects stand in effects more than 512 levels deep";
constexpr std::size_t STACK = (Support::HAS_SANITIZER ? 4 : 1) * 1024 * 1024;

PropertyTree Vibrance()
{
    return Map({{"name", "EFFECT_VIBRANCE"}, {"strength", 3}});
}

// Each of them makes a tree of an effect that holds the effects of a list, which is moved, since a map written down would copy
// all of it at every level.

PropertyTree Holder(std::string_view classId, std::string_view key, PropertyTree held)
{
    PropertyTree tree;
    tree["name"] = std::string(classId);
    tree[key] = std::move(held);
    return tree;
}

PropertyTree Foreground(PropertyTree effects)
{
    return Holder("EffectsPackageOneInputWithBrush", "foregroundEffects", std::move(effects));
}

PropertyTree Background(PropertyTree effects)
{
    return Holder("EffectsPackageOneInputWithBrush", "backgroundEffects", std::move(effects));
}

PropertyTree BeforeTheTile(PropertyTree effects)
{
    return Holder("effectSettingsTileStub", "pre", std::move(effects));
}

PropertyTree BehindTheTile(PropertyTree effects)
{
    return Holder("effectSettingsTileStub", "post", std::move(effects));
}

PropertyTree CellOfTheTile(PropertyTree effects)
{
    PropertyTree row;
    row["cols"].append(std::move(effects));
    PropertyTree rows;
    rows.append(std::move(row));
    return Holder("effectSettingsTileStub", "effectRows", std::move(rows));
}

PropertyTree Faces(PropertyTree effects)
{
    PropertyTree items;
    for (PropertyTree& effect : effects.getList())
    {
        PropertyTree item;
        item["effect"] = std::move(effect);
        items.append(std::move(item));
    }
    return Holder("SettingsEffectFacePackage", "facesEffects", std::move(items));
}

struct Shape
{
    const char* name;
    std::vector<PropertyTree (*)(PropertyTree)> holders; // from the innermost on, in turn
    PropertyTree left;                                   // of a tree that is too deep: the outermost effect
};

void PrintTo(const Shape& shape, std::ostream* out)
{
    *out << shape.name;
}

// At every level an effect stands before the one that goes on.
PropertyTree Nested(const Shape& shape, int levels)
{
    PropertyTree tree = Map({{"name", "EFFECT_ACID"}, {"radius", 4}});
    for (int level = 1; level < levels; ++level)
    {
        PropertyTree effects;
        effects.append(Vibrance());
        effects.append(std::move(tree));
        tree = shape.holders[static_cast<std::size_t>(level) % shape.holders.size()](std::move(effects));
    }
    return tree;
}

std::shared_ptr<IEffectSettings> Read(const PropertyTree& tree)
{
    std::shared_ptr<IEffectSettings> effect;
    EffectSettings::DeserializePtr(tree, effect);
    return effect;
}

PropertyTree Written(const std::shared_ptr<const IEffectSettings>& effect)
{
    PropertyTree tree;
    EffectSettings::SerializePtr(tree, effect);
    return tree;
}

class EffectNesting : public testing::TestWithParam<Shape>
{
};

TEST_P(EffectNesting, WorksTo512Levels)
{
    const auto work = []
    {
        const PropertyTree tree = Nested(GetParam(), LIMIT);
        const auto effect = Read(tree);
        EXPECT_TRUE(Written(effect) == tree);
        const auto clone = effect->Clone();
        EXPECT_TRUE(Written(clone) == tree);
        EXPECT_TRUE(*clone == *effect);
        EXPECT_TRUE(IEffectSettings::Equal({clone}, {effect}));
        EXPECT_EQ(IEffectSettings::Find(IEffectSettings::List{effect}, effect->GetClassId()), effect);
        EXPECT_FALSE(effect->IsEmpty());
        EXPECT_FALSE(effect->GetEffectSettings().IsEmpty());

        const auto other = IEffectSettings::CreateEffectSettings(effect->GetClassId());
        const auto from = effect->GetPropertyAccess();
        if (const auto to = other->GetPropertyAccess())
        {
            for (const std::string& key : from->ListProperties())
            {
                to->SetProperty(key, from->GetProperty(key));
            }
            EXPECT_TRUE(Written(other) == tree);
            other->Deserialize(Map({}));
            other->SetEffectSettings(effect->GetEffectSettings());
            EXPECT_TRUE(Written(other) == tree);
        }
    };
    Support::RunOnStack(STACK, work);
}

TEST_P(EffectNesting, EndsAtThe513th)
{
    const auto work = []
    {
        std::shared_ptr<IEffectSettings> effect;
        try
        {
            EffectSettings::DeserializePtr(Nested(GetParam(), LIMIT + 1), effect);
            ADD_FAILURE() << "was read";
        }
        catch (const std::length_error& failure)
        {
            EXPECT_STREQ(failure.what(), REFUSAL);
        }
        EXPECT_EQ(Written(effect), GetParam().left);
        EXPECT_TRUE(Read(Nested(GetParam(), LIMIT))) << "the refusal has left levels counted";
    };
    Support::RunOnStack(STACK, work);
}

// Such an effect can be made in memory alone. What is stored of it would be lost, since no reader takes it.
TEST_P(EffectNesting, IsNotWrittenBeyondThe512th)
{
    const auto work = []
    {
        const PropertyTree tree = Nested(GetParam(), LIMIT + 1);
        const auto effect = IEffectSettings::CreateEffectSettings(tree["name"].getScalar().toString());
        effect->Deserialize(tree); // which counts the effects inside it alone
        PropertyTree written;
        try
        {
            EffectSettings::SerializePtr(written, effect);
            ADD_FAILURE() << "was written";
        }
        catch (const std::length_error& failure)
        {
            EXPECT_STREQ(failure.what(), REFUSAL);
        }
        EXPECT_TRUE(Written(Read(Nested(GetParam(), LIMIT))) == Nested(GetParam(), LIMIT))
            << "the refusal has left levels counted";

        effect->Serialize(written); // which counts them in the same way
        written["name"] = effect->GetClassId();
        EXPECT_TRUE(written == tree);
        const auto clone = effect->Clone();
        EXPECT_TRUE(*clone == *effect);
        EXPECT_THROW(Written(clone), std::length_error);
    };
    Support::RunOnStack(STACK, work);
}

// What is left of a cell is nothing, since its row is added when it has been read.
INSTANTIATE_TEST_SUITE_P(Shapes, EffectNesting,
                         testing::Values(Shape{"foreground", {Foreground}, Foreground(List({Vibrance()}))},
                                         Shape{"background", {Background}, Background(List({Vibrance()}))},
                                         Shape{"before the tile", {BeforeTheTile}, BeforeTheTile(List({Vibrance()}))},
                                         Shape{"behind the tile", {BehindTheTile}, BehindTheTile(List({Vibrance()}))},
                                         Shape{"cell of the tile", {CellOfTheTile}, Map({{"name", "effectSettingsTileStub"}})},
                                         Shape{"faces", {Faces}, Faces(List({Vibrance()}))},
                                         Shape{"all in turn",
                                               {Faces, CellOfTheTile, Background, BeforeTheTile, Foreground, BehindTheTile},
                                               Background(List({Vibrance()}))}));

// An effect of a caller's own that holds another one, which is there before the read.
class HoldingSettings : public EffectSettings
{
public:
    static const std::string CLASS_ID;
    static const std::shared_ptr<IEffectSettings> BEFORE;

    const std::string& GetClassId() const override { return CLASS_ID; }

    void Deserialize(const PropertyTree& tree) override
    {
        m_isRead = true;
        if (tree.contains("effect"))
        {
            DeserializePtr(tree["effect"], m_effect);
        }
    }

    std::shared_ptr<IEffectSettings> Clone() const override { return nullptr; }
    const Ombrel::Proc::Settings& GetEffectSettings() const override { throw std::logic_error("has none"); }
    Ombrel::Proc::Settings& GetEffectSettingsRef() override { throw std::logic_error("has none"); }
    InputType GetInputType() override { return InputType::One; }
    void SetEffectSettings(const Ombrel::Proc::Settings&) override {}
    void Add(const IEffectSettings&) override {}
    bool operator==(const IEffectSettings&) const override { return false; }

    bool m_isRead = false;
    std::shared_ptr<IEffectSettings> m_effect = BEFORE;
};

const std::string HoldingSettings::CLASS_ID{"EFFECT_HOLDING"};
const std::shared_ptr<IEffectSettings> HoldingSettings::BEFORE = std::make_shared<HoldingSettings>();

PropertyTree Holding(int levels, PropertyTree innermost)
{
    PropertyTree tree = std::move(innermost);
    for (int level = 0; level < levels; ++level)
    {
        tree = Holder("EFFECT_HOLDING", "effect", std::move(tree));
    }
    return tree;
}

// How many effects have been read, each in the one before it, and what the last of them holds.
struct Chain
{
    int length = 0;
    std::shared_ptr<IEffectSettings> end;
};

Chain ChainOf(std::shared_ptr<IEffectSettings> effect)
{
    Chain chain{0, std::move(effect)};
    while (const auto* holding = dynamic_cast<const HoldingSettings*>(chain.end.get()))
    {
        if (!holding->m_isRead)
        {
            break;
        }
        ++chain.length;
        chain.end = holding->m_effect;
    }
    return chain;
}

class HeldEffects : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        IEffectSettings::RegisterFactory(HoldingSettings::CLASS_ID, [] { return std::make_shared<HoldingSettings>(); });
    }
};

TEST_F(HeldEffects, AreReadTo512Levels)
{
    EXPECT_EQ(ChainOf(Read(Holding(LIMIT - 1, Map({{"name", "EFFECT_HOLDING"}})))).length, 512);
}

// It takes no stack, and is written where it stands.
TEST_F(HeldEffects, ANullTreeIsNoLevel)
{
    const Chain chain = ChainOf(Read(Holding(LIMIT, PropertyTree())));
    EXPECT_EQ(chain.length, 512);
    EXPECT_FALSE(chain.end);
}

// A read that writes, and a write that reads, may each go as deep as any.
TEST_F(HeldEffects, ReadsAndWritesAreCountedApart)
{
    static const auto tree = Nested(Shape{"", {Foreground}, {}}, LIMIT);
    static const auto effect = Read(tree);
    static bool isEqual;
    IEffectSettings::RegisterFactory("EFFECT_WRITES_WHEN_MADE",
                                     []
                                     {
                                         isEqual = Written(effect) == tree;
                                         return std::make_shared<HoldingSettings>();
                                     });
    EXPECT_EQ(ChainOf(Read(Holding(LIMIT - 1, Map({{"name", "EFFECT_WRITES_WHEN_MADE"}})))).length, 512);
    EXPECT_TRUE(isEqual);
}

// All that was read stays, and what the 513th was to replace.
TEST_F(HeldEffects, TheRefusedOneIsNotTouched)
{
    for (const PropertyTree& innermost :
         {Map({{"name", "EFFECT_HOLDING"}}), Map({{"name", "EFFECT_NOTHING"}}), Map({}), PropertyTree(5)})
    {
        std::shared_ptr<IEffectSettings> effect;
        EXPECT_THROW(EffectSettings::DeserializePtr(Holding(LIMIT, innermost), effect), std::length_error);
        const Chain chain = ChainOf(effect);
        EXPECT_EQ(chain.length, 512);
        EXPECT_EQ(chain.end, HoldingSettings::BEFORE) << testing::PrintToString(innermost);
    }
}

// They end as early as 513 do.
TEST_F(HeldEffects, AHundredThousandLevelsAreRefusedToo)
{
    const PropertyTree tree = Holding(100'000, Map({}));
    const auto work = [&tree]
    {
        std::shared_ptr<IEffectSettings> effect;
        EXPECT_THROW(EffectSettings::DeserializePtr(tree, effect), std::length_error);
        EXPECT_EQ(ChainOf(effect).length, 512);
    };
    Support::RunOnStack(STACK, work);
}

} // namespace
