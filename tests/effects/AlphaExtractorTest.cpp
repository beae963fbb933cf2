#include "Proc/EffectSettings/AlphaExtractorSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

namespace
{

using Ombrel::PhotoCore::AlphaExtractorSettings;
using Support::Map;
using Support::StoredForm;

TEST(AlphaExtractor, StoresOnlyWhatEveryEffectHas)
{
    AlphaExtractorSettings effect;
    effect.Deserialize(Map({{"implName", "other"}, {"strength", 5}, {"alpha", Map({})}}));
    EXPECT_EQ(StoredForm(effect), Map({{"implName", "other"}}));
}

TEST(AlphaExtractor, HasAPropertyAccessThatListsNothing)
{
    AlphaExtractorSettings effect;
    const auto access = effect.GetPropertyAccess();
    ASSERT_TRUE(access);
    EXPECT_TRUE(access->ListProperties().empty());
    access->SetProperty("strength", 5);
    EXPECT_TRUE(access->GetProperty("strength").isNull());
}

TEST(AlphaExtractor, EqualsEveryOtherAndIsNeverEmpty)
{
    AlphaExtractorSettings effect;
    effect.HelperSetting().SetUndoSet(true);
    EXPECT_TRUE(effect == AlphaExtractorSettings());
    EXPECT_FALSE(effect.GetEffectSettings().IsEmpty());
}

} // namespace
