#include "Proc/EffectSettings/BlendSettings.h"

#include "Exception/Exception.h"
#include "Proc/EffectSettings/EffectSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <concepts>
#include <cstdint>
#include <limits>
#include <memory>
#include <type_traits>
#include <utility>

namespace
{

using namespace Ombrel::PhotoCore;
using Ombrel::PropertyTree;
using Ombrel::Proc::SettingsEffectColorBlender;
using Ombrel::Proc::SettingsEffectImageBlender;
using Mode = SettingsEffectColorBlender::BlendingMode;
using Support::Map;
using Support::Restored;
using Support::StoredForm;

static_assert(std::derived_from<SettingsEffectImageBlender, SettingsEffectColorBlender>);
static_assert(std::is_nothrow_move_constructible_v<BlendSettings>);
static_assert(std::is_nothrow_move_assignable_v<BlendSettings>);

TEST(Blend, DoesNotShowByDefault)
{
    const BlendSettings effect;
    EXPECT_EQ(effect.GetTypedSettings().GetIntensity(), 0.0f);
    EXPECT_EQ(effect.GetTypedSettings().GetBlendingMode(), Mode::Default);
    EXPECT_TRUE(effect.GetTypedSettings().IsEmpty());
    EXPECT_FALSE(effect.IsEmpty());
    EXPECT_FALSE(effect.IsAdditive());
    EXPECT_TRUE(Restored<BlendSettings>(Map({})) == effect);
}

TEST(Blend, EveryAlphaComesBack)
{
    for (int alpha = 0; alpha <= 255; ++alpha)
    {
        SettingsEffectImageBlender record;
        record.SetIntensity(static_cast<float>(alpha) / 255.0f);
        EXPECT_EQ(record.GetAlpha(), alpha);
    }
}

TEST(Blend, AlphaIsRoundedAndHeldWithinItsScale)
{
    constexpr float infinity = std::numeric_limits<float>::infinity();
    constexpr float highest = std::numeric_limits<float>::max();
    const std::pair<float, std::int32_t> cases[] = {
        {0.0f, 0},       {-0.0f, 0},     {0.001f, 0},    {0.0019f, 0},  {0.002f, 1},        {0.5f, 128}, {0.998f, 254},
        {0.9985f, 255},  {1.0f, 255},    {1.01f, 255},   {1e10f, 255},  {-1e10f, 0},        {-0.01f, 0}, {-1.0f, 0},
        {infinity, 255}, {-infinity, 0}, {highest, 255}, {-highest, 0}, {std::nanf(""), 0},
    };
    for (const auto& [intensity, alpha] : cases)
    {
        SettingsEffectImageBlender record;
        record.SetIntensity(intensity);
        EXPECT_EQ(record.GetAlpha(), alpha) << intensity;
    }
}

TEST(Blend, AlphaSetAloneIsTheIntensity)
{
    const std::pair<std::int64_t, float> cases[] = {{255, 1.0f}, {0, 0.0f},     {51, 0.2f},
                                                    {510, 2.0f}, {-255, -1.0f}, {4294967551, 1.0f}};
    for (const auto& [alpha, intensity] : cases)
    {
        BlendSettings effect;
        effect.GetPropertyAccess()->SetProperty("alpha", alpha);
        EXPECT_EQ(effect.GetTypedSettings().GetIntensity(), intensity) << alpha;
    }
    BlendSettings effect;
    effect.GetPropertyAccess()->SetProperty("alpha", 255);
    EXPECT_EQ(effect.GetTypedSettings().GetAlpha(), 255);
}

TEST(Blend, AReadEndsWithTheIntensityOfTheMode)
{
    struct Case
    {
        PropertyTree tree;
        float intensity;
    };
    const Case cases[] = {
        {Map({{"alpha", 128}, {"blendingMode", "Default"}}), 0.0f},
        {Map({{"alpha", 128}, {"blendingMode", "KeepDstAlpha"}}), 0.10196078431f},
        {Map({{"blendingMode", "KeepDstAlpha"}}), 0.10196078431f},
        {Map({{"alpha", 128}, {"blendingMode", "nonsense"}}), 0.0f},
        {Map({{"alpha", 128}, {"blendingMode", Map({})}}), 0.0f},
        {Map({{"alpha", 128}}), 0.0f},
        {Map({}), 0.0f},
    };
    for (const Case& c : cases)
    {
        for (const Mode mode : {Mode::Default, Mode::KeepDstAlpha})
        {
            BlendSettings effect;
            effect.GetTypedSettings().SetIntensity(0.75f);
            effect.GetTypedSettings().SetBlendingMode(mode);
            effect.Deserialize(c.tree);
            EXPECT_EQ(effect.GetTypedSettings().GetIntensity(), c.intensity) << testing::PrintToString(c.tree);
            EXPECT_EQ(effect.GetTypedSettings().GetBlendingMode(), mode) << testing::PrintToString(c.tree);
        }
    }
}

TEST(Blend, TheModeAsAPropertySetsTheIntensityToo)
{
    BlendSettings effect;
    effect.GetPropertyAccess()->SetProperty("blendingMode", "KeepDstAlpha");
    EXPECT_EQ(effect.GetTypedSettings().GetAlpha(), 26);
    EXPECT_EQ(effect.GetTypedSettings().GetBlendingMode(), Mode::Default);
    EXPECT_EQ(effect.GetPropertyAccess()->GetProperty("blendingMode"), PropertyTree("Default"));

    effect.GetTypedSettings().SetBlendingMode(Mode::KeepDstAlpha);
    effect.GetPropertyAccess()->SetProperty("blendingMode", "Default");
    EXPECT_EQ(effect.GetTypedSettings().GetIntensity(), 0.0f);
    EXPECT_EQ(effect.GetTypedSettings().GetBlendingMode(), Mode::KeepDstAlpha);
}

TEST(Blend, StoresTheModeOfTheRecord)
{
    BlendSettings effect;
    effect.GetTypedSettings().SetBlendingMode(Mode::KeepDstAlpha);
    EXPECT_EQ(StoredForm(effect), Map({{"blendingMode", "KeepDstAlpha"}}));
    effect.GetTypedSettings().SetBlendingMode(static_cast<Mode>(5));
    EXPECT_EQ(StoredForm(effect), Map({{"blendingMode", ""}}));
}

TEST(Blend, StoresAlphaAsItIsShown)
{
    BlendSettings effect;
    effect.GetTypedSettings().SetIntensity(0.501f); // 127.755
    EXPECT_EQ(StoredForm(effect), Map({{"alpha", 128}}));
    effect.GetTypedSettings().SetIntensity(0.001f);
    EXPECT_EQ(StoredForm(effect), Map({})) << "shown as the default is";
}

TEST(Blend, ComparesEveryMember)
{
    const SettingsEffectImageBlender record;
    SettingsEffectImageBlender other;
    other.SetPositionX(1);
    EXPECT_FALSE(record == other);
    EXPECT_FALSE(other.IsEmpty());
    other = record;
    other.SetPositionY(1);
    EXPECT_FALSE(record == other);
    EXPECT_FALSE(other.IsEmpty());
    other = record;
    other.SetIntensity(0.001f); // the same alpha
    EXPECT_FALSE(record == other);
    EXPECT_FALSE(other.IsEmpty());
    other = record;
    other.SetBlendingMode(Mode::KeepDstAlpha);
    EXPECT_FALSE(record == other);
    EXPECT_FALSE(other.IsEmpty());
    EXPECT_FALSE(BlendSettings(record) == BlendSettings(other));
    EXPECT_TRUE(BlendSettings(other) == BlendSettings(other));
    EXPECT_TRUE(record.SettingsEffectColorBlender::operator==(SettingsEffectImageBlender()));
}

TEST(Blend, MovesAllOfItself)
{
    BlendSettings effect;
    effect.GetTypedSettings().SetPositionX(7);
    effect.HelperSetting().SetMaxWidth(640);
    BlendSettings moved(std::move(effect));
    EXPECT_EQ(moved.GetTypedSettings().GetPositionX(), 7);
    EXPECT_EQ(moved.GetHelperSettings().GetMaxWidth(), 640u);
    BlendSettings assigned;
    assigned = std::move(moved);
    EXPECT_EQ(assigned.GetTypedSettings().GetPositionX(), 7);
    EXPECT_EQ(assigned.GetHelperSettings().GetMaxWidth(), 640u);
}

TEST(Blend, IsAssignedWithAllOfItself)
{
    BlendSettings effect;
    effect.GetTypedSettings().SetPositionX(7);
    effect.HelperSetting().SetMaxWidth(640);
    BlendSettings assigned;
    assigned = effect;
    EXPECT_EQ(StoredForm(assigned), Map({{"helperSettings", Map({{"maxWidth", 640}})}, {"positionX", 7}}));
    EXPECT_EQ(StoredForm(effect), Map({{"helperSettings", Map({{"maxWidth", 640}})}, {"positionX", 7}}));
}

TEST(Blend, IsWrittenButNotMadeByItsId)
{
    PropertyTree tree;
    EffectSettings::SerializePtr(tree, BlendSettings::CreateBase());
    EXPECT_EQ(tree, Map({{"name", "EFFECT_BLEND"}}));
    std::shared_ptr<IEffectSettings> effect;
    EXPECT_THROW(EffectSettings::DeserializePtr(tree, effect), Ombrel::Exception);
    EXPECT_FALSE(effect);
}

} // namespace
