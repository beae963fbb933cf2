#include "Proc/EffectSettings/MattingSettings.h"

#include "Proc/EffectSettings/DeepRestorerSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

namespace
{

using namespace Ombrel::PhotoCore;
using Support::Map;
using Support::StoredForm;

TEST(Matting, EqualsEveryMattingAndNothingElse)
{
    const auto a = MattingSettings::Create({});
    const auto b = MattingSettings::CreateBase();
    b->HelperSetting().SetUndoSet(true);
    EXPECT_TRUE(*a == *b);
    EXPECT_TRUE(a->GetEffectSettings().IsEqualTo(b->GetEffectSettings()));
    EXPECT_FALSE(*a == DeepRestorerSettings());
    EXPECT_FALSE(DeepRestorerSettings() == *a);
}

TEST(Matting, StoresWhatEveryEffectStores)
{
    MattingSettings effect;
    effect.HelperSetting().SetUndoSet(true);
    EXPECT_EQ(StoredForm(effect), Map({{"helperSettings", Map({{"undoSet", true}})}}));

    MattingSettings restored;
    restored.Deserialize(StoredForm(effect));
    EXPECT_TRUE(restored.GetHelperSettings().GetUndoSet());
    EXPECT_FALSE(effect.IsEmpty());
    EXPECT_FALSE(effect.GetEffectSettings().IsEmpty());
}

} // namespace
