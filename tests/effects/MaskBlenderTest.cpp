#include "Proc/EffectSettings/SettingsEffectMaskBlender.h"

#include "Proc/EffectSettings/EffectSettingsSimple.h"
#include "effects/BrushPackageSamples.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <type_traits>
#include <typeinfo>
#include <utility>

namespace
{

using namespace BrushPackageSamples;
using namespace Ombrel::PhotoCore;
using Ombrel::Proc::SettingsEffectShapeMask;
using Mode = Record::SizeOptimization;

template <class Any>
concept HasConstMode = requires(const Any& record)
{
    record.GetOptimizationMode();
};
static_assert(!HasConstMode<Record>, "the getter of the mode takes a record that may change");
static_assert(std::is_same_v<decltype(std::declval<const Record&>().GetForegroundEffects()), const EffectList&>);
static_assert(std::is_same_v<decltype(std::declval<const Record&>().GetBackgroundEffects()), const EffectList&>);
static_assert(std::is_same_v<decltype(std::declval<const Record&>().GetAlpha()), const SettingsEffectShapeMask&>);
static_assert(std::is_same_v<decltype(std::declval<Record&>().EraseForegroundEffect("")), bool>);
static_assert(std::is_same_v<decltype(std::declval<const Record&>().GetBackgroundFrameIndex()), std::uint32_t>);

// What a record offers for one of its lists, so that a rule is told once for both.
struct Side
{
    const char* name;
    const EffectList& (Record::*list)() const;
    void (Record::*setList)(const EffectList&);
    Record::Effect (Record::*get)(const std::string&) const;
    void (Record::*set)(Record::Effect);
    bool (Record::*erase)(const std::string&);
    const EffectList& (Record::*otherList)() const;
};

void PrintTo(const Side& side, std::ostream* out)
{
    *out << side.name;
}

class MaskBlenderListTest : public testing::TestWithParam<Side>
{
protected:
    const EffectList& List() const { return (m_record.*GetParam().list)(); }
    void SetList(const EffectList& effects) { (m_record.*GetParam().setList)(effects); }
    Record::Effect Get(const std::string& id) const { return (m_record.*GetParam().get)(id); }
    void Set(Record::Effect effect) { (m_record.*GetParam().set)(std::move(effect)); }
    bool Erase(const std::string& id) { return (m_record.*GetParam().erase)(id); }

    void TearDown() override { EXPECT_TRUE((m_record.*GetParam().otherList)().empty()) << "the other list was touched"; }

    Record m_record;
};

TEST_P(MaskBlenderListTest, IsSetWholeAndShared)
{
    const EffectList effects{Vibrance(1), nullptr, Vibrance(2), Acid(3)};
    SetList(effects);
    EXPECT_EQ(List(), effects);
    SetList({});
    EXPECT_TRUE(List().empty());
}

TEST_P(MaskBlenderListTest, SettingItsOwnListDoesNothing)
{
    SetList({Vibrance(1), nullptr, Acid(2)});
    const EffectList kept = List();
    const auto* data = List().data();
    SetList(List());
    EXPECT_EQ(List(), kept);
    EXPECT_EQ(List().data(), data);
}

TEST_P(MaskBlenderListTest, FindsTheFirstOfItsId)
{
    const EffectList effects{nullptr, Acid(1), Vibrance(2), Vibrance(3)};
    SetList(effects);
    EXPECT_EQ(Get("EFFECT_VIBRANCE"), effects[2]);
    EXPECT_EQ(Get("EFFECT_ACID"), effects[1]);
    EXPECT_FALSE(Get("EFFECT_EMPTY"));
    EXPECT_FALSE(Get(""));
}

TEST_P(MaskBlenderListTest, ASecondEffectOfTheSameIdReplacesTheFirst)
{
    const auto second = Vibrance(2);
    Set(Vibrance(1));
    Set(second);
    EXPECT_EQ(List(), EffectList{second});
}

TEST_P(MaskBlenderListTest, AnEffectKeepsThePlaceOfTheOneItReplaces)
{
    const EffectList effects{nullptr, Acid(1), Vibrance(2), Vibrance(3)};
    SetList(effects);
    const auto vibrance = Vibrance(4);
    Set(vibrance);
    EXPECT_EQ(List(), (EffectList{nullptr, effects[1], vibrance, effects[3]}));
    const auto empty = EffectSettingsSimple::CreateBase();
    Set(empty);
    EXPECT_EQ(List(), (EffectList{nullptr, effects[1], vibrance, effects[3], empty}));
}

// An effect around any record has an id of its own, and so never replaces what its record would be found by.
TEST_P(MaskBlenderListTest, TheEffectsOwnIdMeetsTheRecordsOfTheList)
{
    const auto simple = EffectSettingsSimple::Create(std::make_shared<Ombrel::Proc::SettingsEffectAcid>());
    Set(simple);
    Set(simple);
    EXPECT_EQ(List(), (EffectList{simple, simple}));
    const auto acid = Acid(1);
    Set(acid);
    EXPECT_EQ(List(), (EffectList{acid, simple}));
    EXPECT_EQ(Get("EFFECT_ACID"), acid);
    EXPECT_FALSE(Get("effectSettingsSimple"));
}

TEST_P(MaskBlenderListTest, ErasesTheFirstOfItsId)
{
    const EffectList effects{nullptr, Acid(1), Vibrance(2), Vibrance(3), Acid(4)};
    SetList(effects);
    EXPECT_TRUE(Erase("EFFECT_VIBRANCE"));
    EXPECT_EQ(List(), (EffectList{nullptr, effects[1], effects[3], effects[4]}));
    EXPECT_TRUE(Erase("EFFECT_VIBRANCE"));
    EXPECT_EQ(List(), (EffectList{nullptr, effects[1], effects[4]}));
    EXPECT_FALSE(Erase("EFFECT_VIBRANCE"));
    EXPECT_FALSE(Erase(""));
    EXPECT_EQ(List(), (EffectList{nullptr, effects[1], effects[4]}));
}

TEST_P(MaskBlenderListTest, ErasingInAnEmptyListFindsNothing)
{
    EXPECT_FALSE(Erase("EFFECT_VIBRANCE"));
}

INSTANTIATE_TEST_SUITE_P(Both, MaskBlenderListTest,
                         testing::Values(Side{"Foreground", &Record::GetForegroundEffects, &Record::SetForegroundEffects,
                                              &Record::GetForegroundEffect, &Record::SetForegroundEffect,
                                              &Record::EraseForegroundEffect, &Record::GetBackgroundEffects},
                                         Side{"Background", &Record::GetBackgroundEffects, &Record::SetBackgroundEffects,
                                              &Record::GetBackgroundEffect, &Record::SetBackgroundEffect,
                                              &Record::EraseBackgroundEffect, &Record::GetForegroundEffects}),
                         [](const auto& row) { return row.param.name; });

TEST(MaskBlender, ItsMaskDiffersFromAMaskByItself)
{
    Record record;
    EXPECT_EQ(record.GetAlpha().m_foreground, 0);
    EXPECT_EQ(record.GetAlpha().m_background, 255);
    SettingsEffectShapeMask expected;
    expected.m_foreground = 0;
    expected.m_background = 255;
    EXPECT_TRUE(record.GetAlpha() == expected);
    EXPECT_TRUE(record.GetForegroundEffects().empty());
    EXPECT_TRUE(record.GetBackgroundEffects().empty());
    EXPECT_EQ(record.GetOptimizationMode(), Mode::ShapeSizeBased);
    EXPECT_FALSE(record.GetUseExternalMask());
    EXPECT_EQ(record.GetBlendingStrength(), 0);
    EXPECT_FALSE(record.GetSwapFramesIfMaskFound());
    EXPECT_EQ(record.GetBackgroundFrameIndex(), 4294967295u);
    EXPECT_EQ(record.GetClassId(), "EffectsPackageOneInputWithBrush");
    EXPECT_EQ(Record::CLASS_ID, "EffectsPackageOneInputWithBrush");
}

TEST(MaskBlender, IsEmptyWithoutWorkOrAtFullStrength)
{
    struct Case
    {
        const char* name;
        EffectList foreground;
        EffectList background;
        bool isEmpty;
    };
    const Case cases[] = {
        {"no effects", {}, {}, true},
        {"neutral records", {Acid(0), Vibrance(0)}, {Acid(0)}, true},
        {"null effects", {nullptr}, {nullptr, nullptr}, true},
        {"a neutral background", {Acid(3)}, {Acid(0)}, false},
        {"a neutral foreground", {Acid(0)}, {Acid(3)}, false},
        {"foreground alone", {Acid(3)}, {}, false},
        {"background alone", {}, {Acid(3)}, false},
        {"last of several", {nullptr, Acid(0), Vibrance(1)}, {}, false},
    };
    for (const Case& c : cases)
    {
        for (const std::int32_t strength : {0, 254, 255, 256, -1})
        {
            Record record = Foreground(c.foreground);
            record.SetBackgroundEffects(c.background);
            record.SetBlendingStrength(strength);
            const bool isEmpty = c.isEmpty || strength == 255;
            EXPECT_EQ(record.IsEmpty(), isEmpty) << c.name << ", strength " << strength;
            EXPECT_EQ(EffectsPackageWithBrushSettings(record).IsEmpty(), isEmpty) << c.name << ", strength " << strength;
        }
    }
}

// All forms of the question whether two records are alike.
bool AreEqual(const Record& a, const Record& b)
{
    const bool isEqual = a == b;
    EXPECT_EQ(a != b, !isEqual);
    EXPECT_EQ(a.operator!=(b), !isEqual);
    EXPECT_EQ(a.IsEqualTo(b), isEqual);
    EXPECT_EQ(b.IsEqualTo(a), isEqual);
    EXPECT_EQ(EffectsPackageWithBrushSettings(a) == EffectsPackageWithBrushSettings(b), isEqual);
    EXPECT_EQ(EffectsPackageWithBrushSettings(a) != EffectsPackageWithBrushSettings(b), !isEqual);
    return isEqual;
}

TEST(MaskBlender, ComparesMaskFlagsStrengthAndEffects)
{
    const Record record;
    Record other;
    other.SetAlpha(SettingsEffectShapeMask());
    EXPECT_FALSE(AreEqual(record, other));
    other = record;
    other.SetUseExternalMask(true);
    EXPECT_FALSE(AreEqual(record, other));
    other = record;
    other.SetOptimizationMode(Mode::FrameSizeBased);
    EXPECT_FALSE(AreEqual(record, other));
    other = record;
    other.SetBlendingStrength(1);
    EXPECT_FALSE(AreEqual(record, other));
    EXPECT_FALSE(AreEqual(record, Foreground({Acid(0)})));
    EXPECT_FALSE(AreEqual(record, Background({Acid(0)})));
    EXPECT_FALSE(AreEqual(Foreground({Acid(0)}), Background({Acid(0)})));
    EXPECT_TRUE(AreEqual(Foreground({Acid(1), nullptr, Vibrance(2)}), Foreground({Acid(1), nullptr, Vibrance(2)})));
}

TEST(MaskBlender, BackgroundFrameAndSwappingPlayNoPart)
{
    const Record record;
    Record other;
    other.SetBackgroundFrameIndex(3);
    other.SetSwapFramesIfMaskFound(true);
    EXPECT_TRUE(AreEqual(record, other));
}

TEST(MaskBlender, ComparesItsPartsByThemselves)
{
    const Record record = Foreground({Acid(1)});
    Record other = Background({Acid(1)});
    other.SetAlpha(SettingsEffectShapeMask());
    EXPECT_FALSE(record.IsAlphaEqual(other));
    EXPECT_FALSE(record.IsFgEffectsEqual(other));
    EXPECT_FALSE(record.IsBgEffectsEqual(other));

    other.SetAlpha(record.GetAlpha());
    EXPECT_TRUE(record.IsAlphaEqual(other));
    other.SetForegroundEffects({Acid(1)});
    EXPECT_TRUE(record.IsFgEffectsEqual(other)) << "other objects with the same values";
    EXPECT_FALSE(record.IsBgEffectsEqual(other));
    other.SetBackgroundEffects({});
    EXPECT_TRUE(record.IsBgEffectsEqual(other));
}

TEST(MaskBlender, EffectsAreComparedOneByOne)
{
    const Record record = Background({Acid(1), Vibrance(2)});
    for (const EffectList& effects : {EffectList{Acid(1), Vibrance(3)}, EffectList{Vibrance(2), Acid(1)}, EffectList{Acid(1)},
                                      EffectList{Acid(1), nullptr}, EffectList{Acid(1), Vibrance(2), nullptr}})
    {
        EXPECT_FALSE(AreEqual(record, Background(effects)));
    }
    const auto simple = EffectSettingsSimple::CreateBase(); // equals nothing, but a pointer equals itself
    EXPECT_TRUE(AreEqual(Background({simple}), Background({simple})));
    EXPECT_FALSE(AreEqual(Background({simple}), Background({simple->Clone()})));
}

// Equals anything while it stands on the left.
class LeftEqual : public VibranceSettings
{
public:
    using VibranceSettings::operator==;
    bool operator==(const IEffectSettings&) const override { return true; }
};

TEST(MaskBlender, TheArgumentStandsOnTheLeft)
{
    const Record left = Foreground({std::make_shared<LeftEqual>()});
    const Record right = Foreground({Acid(3)});
    EXPECT_TRUE(right.IsEqualTo(left));
    EXPECT_FALSE(left.IsEqualTo(right));
    EXPECT_THROW(left.IsEqualTo(VibranceSettings().GetEffectSettings()), std::bad_cast);
}

TEST(MaskBlender, EveryCopySharesTheEffects)
{
    const EffectList effects{Acid(1), nullptr, Vibrance(2)};
    EffectsPackageWithBrushSettings effect(Foreground(effects));
    effect.GetTypedSettings().SetBackgroundEffects(effects);

    const EffectsPackageWithBrushSettings copy(effect);
    EffectsPackageWithBrushSettings assigned;
    assigned = effect;
    const auto clone = std::dynamic_pointer_cast<const EffectsPackageWithBrushSettings>(effect.Clone());
    EffectsPackageWithBrushSettings receiver;
    receiver.SetEffectSettings(effect.GetEffectSettings());
    for (const EffectsPackageWithBrushSettings* other :
         {&copy, &std::as_const(assigned), clone.get(), &std::as_const(receiver)})
    {
        ASSERT_TRUE(other);
        EXPECT_EQ(other->GetTypedSettings().GetForegroundEffects(), effects);
        EXPECT_EQ(other->GetTypedSettings().GetBackgroundEffects(), effects);
        EXPECT_TRUE(*other == effect);
    }
    const std::unique_ptr<Ombrel::Proc::Settings> record(effect.GetEffectSettings().Clone());
    EXPECT_EQ(dynamic_cast<const Record&>(*record).GetForegroundEffects(), effects);
}

TEST(MaskBlender, MovesAllOfItself)
{
    static_assert(std::is_nothrow_move_constructible_v<EffectsPackageWithBrushSettings>);
    static_assert(std::is_nothrow_move_assignable_v<EffectsPackageWithBrushSettings>);
    const EffectList effects{Acid(1)};
    EffectsPackageWithBrushSettings effect(Foreground(effects));
    effect.GetTypedSettings().SetBackgroundFrameIndex(3);
    effect.HelperSetting().SetMaxWidth(640);
    EffectsPackageWithBrushSettings moved(std::move(effect));
    EXPECT_EQ(moved.GetTypedSettings().GetForegroundEffects(), effects);
    EffectsPackageWithBrushSettings assigned;
    assigned = std::move(moved);
    EXPECT_EQ(assigned.GetTypedSettings().GetForegroundEffects(), effects);
    EXPECT_EQ(assigned.GetTypedSettings().GetBackgroundFrameIndex(), 3u);
    EXPECT_EQ(assigned.GetHelperSettings().GetMaxWidth(), 640u);
}

} // namespace
