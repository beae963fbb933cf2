#include "Proc/EffectSettings/CropSettings.h"

#include "effects/Adding.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{

using namespace Ombrel::PhotoCore;
using Ombrel::PropertyTree;
using Ombrel::Proc::SettingsEffectCrop;
using Support::Map;
using Support::StoredForm;

static_assert(AddsThroughTheInterfaceAlone<CropSettings>);

CropSettings Crop(std::int32_t x, std::int32_t y, std::int32_t width, std::int32_t height)
{
    SettingsEffectCrop record;
    record.SetX(x);
    record.SetY(y);
    record.SetWidth(width);
    record.SetHeight(height);
    return CropSettings(record);
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

TEST(Crop, NumbersAreCutTo32Bits)
{
    CropSettings effect;
    effect.Deserialize(Map({{"x", 4294967301}, {"width", -4294967301}}));
    EXPECT_EQ(effect.GetTypedSettings().GetX(), 5);
    EXPECT_EQ(effect.GetTypedSettings().GetWidth(), -5);
}

} // namespace
