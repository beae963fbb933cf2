#include "Proc/EffectSettings/CropSettings.h"

#include "Proc/EffectSettings/FlipSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <limits>
#include <typeinfo>

namespace
{

using namespace Ombrel::PhotoCore;
using Ombrel::PropertyTree;
using Ombrel::Proc::SettingsEffectCrop;
using Support::Map;
using Support::StoredForm;

template <class Effect>
concept HasPublicIsAdditive = requires(const Effect& effect)
{
    effect.IsAdditive();
};

template <class Effect>
concept HasPublicAdd = requires(Effect& effect)
{
    effect.Add(effect);
};

CropSettings Crop(std::int32_t x, std::int32_t y, std::int32_t width, std::int32_t height)
{
    SettingsEffectCrop record;
    record.SetX(x);
    record.SetY(y);
    record.SetWidth(width);
    record.SetHeight(height);
    return CropSettings(record);
}

void Add(IEffectSettings& effect, const IEffectSettings& other)
{
    effect.Add(other);
}

TEST(Crop, OffsetsAddUpAndTheSizeIsReplaced)
{
    CropSettings effect = Crop(10, 20, 100, 50);
    Add(effect, Crop(5, 5, 30, 40));
    EXPECT_EQ(StoredForm(effect), Map({{"x", 15}, {"y", 25}, {"width", 30}, {"height", 40}}));
}

TEST(Crop, TheSizeOfTheOtherWinsEvenWhereItIsZero)
{
    CropSettings effect = Crop(10, 20, 100, 50);
    Add(effect, CropSettings());
    EXPECT_EQ(StoredForm(effect), Map({{"x", 10}, {"y", 20}}));
}

TEST(Crop, CanBeAddedToItself)
{
    CropSettings effect = Crop(10, -20, 100, 50);
    Add(effect, effect);
    EXPECT_EQ(StoredForm(effect), Map({{"x", 20}, {"y", -40}, {"width", 100}, {"height", 50}}));
}

TEST(Crop, SumsWrapIn32Bits)
{
    constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
    constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
    CropSettings effect = Crop(most, least, 0, 0);
    Add(effect, Crop(1, -1, 0, 0));
    EXPECT_EQ(effect.GetTypedSettings().GetX(), least);
    EXPECT_EQ(effect.GetTypedSettings().GetY(), most);
}

TEST(Crop, OnlyTheRecordTakesPart)
{
    CropSettings effect;
    effect.Deserialize(Map({{"implName", "mine"}, {"helperSettings", Map({{"maxWidth", 640}})}}));
    CropSettings other;
    other.Deserialize(Map({{"implName", "theirs"}, {"helperSettings", Map({{"undoSet", true}})}, {"x", 3}}));
    Add(effect, other);
    EXPECT_EQ(StoredForm(effect), Map({{"implName", "mine"}, {"helperSettings", Map({{"maxWidth", 640}})}, {"x", 3}}));
}

TEST(Crop, RefusesAnotherClassAndStaysAsItIs)
{
    CropSettings effect = Crop(10, 20, 100, 50);
    EXPECT_THROW(Add(effect, FlipSettings()), std::bad_cast);
    EXPECT_EQ(StoredForm(effect), Map({{"x", 10}, {"y", 20}, {"width", 100}, {"height", 50}}));
}

TEST(Crop, AddsThroughTheInterfaceAlone)
{
    EXPECT_FALSE(HasPublicIsAdditive<CropSettings>);
    EXPECT_FALSE(HasPublicAdd<CropSettings>);
    EXPECT_TRUE(HasPublicIsAdditive<IEffectSettings>);
    EXPECT_TRUE(HasPublicAdd<IEffectSettings>);
}

TEST(Crop, NumbersAreCutTo32Bits)
{
    CropSettings effect;
    effect.Deserialize(Map({{"x", 4294967301}, {"width", -4294967301}}));
    EXPECT_EQ(effect.GetTypedSettings().GetX(), 5);
    EXPECT_EQ(effect.GetTypedSettings().GetWidth(), -5);
}

TEST(Crop, OnlyTheRecordSaysThatItIsEmpty)
{
    EXPECT_TRUE(CropSettings().GetTypedSettings().IsEmpty());
    EXPECT_FALSE(Crop(0, 0, 0, 1).GetTypedSettings().IsEmpty());
    EXPECT_FALSE(CropSettings().IsEmpty());
}

} // namespace
