#include "Proc/EffectSettings/TransposeSettings.h"

#include "effects/Adding.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>
#include <type_traits>
#include <utility>

namespace
{

using namespace Ombrel::PhotoCore;
using Ombrel::PropertyTree;
using Ombrel::Proc::SettingsEffectTranspose;
using Support::Map;
using Support::StoredForm;
using Angle = SettingsEffectTranspose::TransposeAngle;

static_assert(HasPublicIsAdditive<TransposeSettings> && HasPublicAdd<TransposeSettings>);
static_assert(HasPublicIsAdditive<IEffectSettings> && HasPublicAdd<IEffectSettings>);
static_assert(std::is_nothrow_move_constructible_v<TransposeSettings> && std::is_nothrow_move_assignable_v<TransposeSettings>);

SettingsEffectTranspose Record(std::int32_t angle)
{
    SettingsEffectTranspose record;
    record.SetAngle(static_cast<Angle>(angle));
    return record;
}

std::int32_t Number(const SettingsEffectTranspose& record)
{
    return static_cast<std::int32_t>(record.GetAngle());
}

TEST(Transpose, QuarterTurnsAddUp)
{
    constexpr std::int32_t sums[4][4] = {{0, 1, 2, 3}, {1, 2, 3, 0}, {2, 3, 0, 1}, {3, 0, 1, 2}};
    for (int first = 0; first < 4; ++first)
    {
        for (int second = 0; second < 4; ++second)
        {
            TransposeSettings effect(Record(first));
            effect.Add(TransposeSettings(Record(second)));
            EXPECT_EQ(Number(effect.GetTypedSettings()), sums[first][second]) << first << " and " << second;
        }
    }
}

TEST(Transpose, OnlyAPositiveNumberTurns)
{
    for (const int angle : {0, -1, -2, -3})
    {
        TransposeSettings effect(Record(-1)); // any turn would bring it into range
        effect.Add(TransposeSettings(Record(angle)));
        EXPECT_EQ(Number(effect.GetTypedSettings()), -1) << angle;
    }
}

TEST(Transpose, AddedToItselfCountsWhatItHeldFirst)
{
    TransposeSettings quarter(Record(1));
    quarter.Add(quarter);
    EXPECT_EQ(quarter.GetTypedSettings().GetAngle(), Angle::Angle_180);

    TransposeSettings threeQuarters(Record(3));
    threeQuarters.Add(threeQuarters);
    EXPECT_EQ(threeQuarters.GetTypedSettings().GetAngle(), Angle::Angle_180);
}

TEST(Transpose, IsAddedThroughTheInterfaceToo)
{
    TransposeSettings effect(Record(3));
    IEffectSettings& interface = effect;
    EXPECT_TRUE(interface.IsAdditive());
    EXPECT_TRUE(effect.IsAdditive());
    interface.Add(TransposeSettings(Record(2)));
    EXPECT_EQ(effect.GetTypedSettings().GetAngle(), Angle::Angle_90);
}

TEST(Transpose, AQuarterTurnEndsOnANamedAngle)
{
    constexpr std::pair<int, int> cases[] = {{-3, 2}, {-2, 3}, {-1, 0}, {0, 1}, {1, 2}, {2, 3}, {3, 0}};
    for (const auto& [before, after] : cases)
    {
        SettingsEffectTranspose record = Record(before);
        record.AddAngle90();
        EXPECT_EQ(Number(record), after) << before;
    }
}

TEST(Transpose, TheSetterStoresTheRemainder)
{
    constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
    constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
    constexpr std::pair<std::int32_t, int> cases[] = {{3, 3},  {4, 0},   {5, 1},    {6, 2},    {-1, -1},
                                                      {-4, 0}, {-6, -2}, {most, 3}, {least, 0}};
    for (const auto& [given, stored] : cases)
    {
        EXPECT_EQ(Number(Record(given)), stored) << given;
    }
}

TEST(Transpose, AnIntegerIsReadAsItsNumber)
{
    constexpr std::pair<std::int64_t, int> cases[] = {{2, 2}, {6, 2}, {-1, -1}, {4294967302, 2}, {-4294967297, -1}};
    for (const auto& [given, stored] : cases)
    {
        TransposeSettings effect;
        effect.GetPropertyAccess()->SetProperty("angle", given);
        EXPECT_EQ(Number(effect.GetTypedSettings()), stored) << given;

        TransposeSettings read;
        read.Deserialize(Map({{"angle", given}}));
        EXPECT_EQ(Number(read.GetTypedSettings()), stored) << given;
    }
}

TEST(Transpose, OnlyAnIntegerIsReadAsANumber)
{
    TransposeSettings effect(Record(1));
    for (const PropertyTree& refused : {PropertyTree(6.0), PropertyTree(true)})
    {
        EXPECT_THROW(effect.Deserialize(Map({{"angle", refused}})), std::invalid_argument);
        EXPECT_EQ(Number(effect.GetTypedSettings()), 1);
    }
    effect.Deserialize(Map({{"angle", "6"}}));
    EXPECT_EQ(Number(effect.GetTypedSettings()), 0);
}

TEST(Transpose, ANumberWithoutANameIsWrittenEmpty)
{
    TransposeSettings effect(Record(-1));
    EXPECT_EQ(StoredForm(effect), Map({{"angle", ""}}));
    effect.Deserialize(StoredForm(effect));
    EXPECT_EQ(Number(effect.GetTypedSettings()), 0);
}

TEST(Transpose, IsMoved)
{
    TransposeSettings effect(Record(3));
    effect.Deserialize(Map({{"implName", "a name too long to be kept in place"}, {"angle", "Angle_270"}}));
    const char* const name = effect.GetImplName().data();

    TransposeSettings moved(std::move(effect));
    EXPECT_EQ(moved.GetImplName().data(), name);
    EXPECT_EQ(Number(moved.GetTypedSettings()), 3);

    TransposeSettings assigned;
    assigned = std::move(moved);
    EXPECT_EQ(assigned.GetImplName().data(), name);
    EXPECT_EQ(Number(assigned.GetTypedSettings()), 3);
}

TEST(Transpose, IsAssigned)
{
    const PropertyTree form = Map({{"angle", "Angle_270"}, {"implName", "a name too long to be kept in place"}});
    TransposeSettings effect;
    effect.Deserialize(form);
    TransposeSettings assigned;
    assigned = effect;
    EXPECT_EQ(StoredForm(assigned), form);
    EXPECT_EQ(StoredForm(effect), form);
}

} // namespace
