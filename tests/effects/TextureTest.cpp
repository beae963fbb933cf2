#include "Proc/EffectSettings/TextureSettings.h"

#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <utility>

namespace
{

using Ombrel::PropertyTree;
using Ombrel::PhotoCore::TextureSettings;
using Ombrel::Proc::SettingsEffectTranspose;
using Support::Map;
using Support::Restored;
using Support::StoredForm;

using Angle = SettingsEffectTranspose::TransposeAngle;

TEST(Texture, StartsInTheMiddle)
{
    TextureSettings effect;
    effect.GetTypedSettings().m_x = 0.5;
    effect.GetTypedSettings().m_y = 0.5;
    EXPECT_EQ(StoredForm(effect), Map({}));

    effect.GetTypedSettings().m_x = 0.0;
    effect.GetTypedSettings().m_y = 0.0;
    EXPECT_EQ(StoredForm(effect), Map({{"x", 0.0}, {"y", 0.0}}));
}

TEST(Texture, OnlyTheRecordIsEmptyWithoutATextureOrAlpha)
{
    struct Case
    {
        const char* texture;
        double alpha;
        bool isEmpty;
    };
    const Case cases[] = {{"", 0.0, true},       {"paper", 0.0, true},   {"", 0.5, true},      {"paper", -0.0, true},
                          {"paper", 0.5, false}, {"paper", -0.5, false}, {" ", 1e-300, false}, {"paper", NAN, false}};
    for (const auto& [texture, alpha, isEmpty] : cases)
    {
        TextureSettings effect;
        effect.GetTypedSettings().m_texture = texture;
        effect.GetTypedSettings().m_alpha = alpha;
        EXPECT_EQ(effect.GetTypedSettings().IsEmpty(), isEmpty) << '"' << texture << "\", " << alpha;
        EXPECT_FALSE(effect.IsEmpty());
    }
}

TEST(Texture, TheNestedAngleIsReadByNameOrNumber)
{
    const std::pair<PropertyTree, int> cases[] = {
        {"NoRotation", 0}, {"Angle_90", 1}, {"Angle_180", 2}, {"Angle_270", 3}, {6, 2}, {-1, -1}, {4294967302, 2}, {"6", 0}};
    for (const auto& [given, stored] : cases)
    {
        const auto effect = Restored<TextureSettings>(Map({{"transpose", Map({{"angle", given}})}}));
        EXPECT_EQ(static_cast<int>(effect.GetTypedSettings().m_transpose.GetAngle()), stored) << testing::PrintToString(given);
    }
}

TEST(Texture, TheNestedAngleIsWrittenByName)
{
    EXPECT_EQ(StoredForm(Restored<TextureSettings>(Map({{"transpose", Map({{"angle", 6}})}}))),
              Map({{"transpose", Map({{"angle", "Angle_180"}})}}));
    EXPECT_EQ(StoredForm(Restored<TextureSettings>(Map({{"transpose", Map({{"angle", -1}})}}))),
              Map({{"transpose", Map({{"angle", ""}})}}));
}

TEST(Texture, ANestedMapHoldsOnlyWhatDiffers)
{
    TextureSettings effect;
    effect.GetTypedSettings().m_flip.SetVertical(true);
    EXPECT_EQ(StoredForm(effect), Map({{"flip", Map({{"vertical", true}})}}));
}

TEST(Texture, MissingNestedKeysAndMissingNestedRecordsAreReset)
{
    TextureSettings effect;
    effect.GetTypedSettings().m_flip.SetHorizontal(true);
    effect.GetTypedSettings().m_flip.SetVertical(true);
    effect.GetTypedSettings().m_transpose.SetAngle(Angle::Angle_270);
    effect.Deserialize(Map({{"flip", Map({{"vertical", true}})}, {"transpose", Map({})}}));
    EXPECT_FALSE(effect.GetTypedSettings().m_flip.GetHorizontal());
    EXPECT_TRUE(effect.GetTypedSettings().m_flip.GetVertical());
    EXPECT_EQ(effect.GetTypedSettings().m_transpose.GetAngle(), Angle::NoRotation);

    effect.Deserialize(Map({}));
    EXPECT_FALSE(effect.GetTypedSettings().m_flip.GetVertical());
    EXPECT_TRUE(effect == TextureSettings());
}

TEST(Texture, ComparesItsNestedRecordsAndFloatsExactly)
{
    TextureSettings a;
    TextureSettings b;
    a.GetTypedSettings().m_transpose.SetAngle(Angle::Angle_90);
    EXPECT_FALSE(a == b);
    b.GetTypedSettings().m_transpose.SetAngle(Angle::Angle_90);
    EXPECT_TRUE(a == b);
    a.GetTypedSettings().m_alpha = b.GetTypedSettings().m_alpha = std::nan("");
    EXPECT_FALSE(a == b);
}

} // namespace
