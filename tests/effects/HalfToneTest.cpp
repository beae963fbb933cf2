#include "Proc/EffectSettings/HalfToneSettings.h"

#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

namespace
{

using Ombrel::PhotoCore::HalfToneSettings;
using Support::Map;
using Support::Restored;
using Support::StoredForm;

TEST(HalfTone, KnowsItsKeysByTheStoredSpellingOnly)
{
    const auto read = Restored<HalfToneSettings>(Map({{"colourSize", 2.0}, {"dotColor", "ff0000ff"}}));
    EXPECT_EQ(read.GetTypedSettings().GetColourSize(), 2.0);
    EXPECT_EQ(read.GetTypedSettings().GetDotColor(), (Ombrel::Proc::RgbaColor{255, 0, 0, 255}));

    const auto ignored =
        Restored<HalfToneSettings>(Map({{"colorSize", 2.0}, {"dotColour", "ff0000ff"}, {"backgroundColour", "ff0000ff"}}));
    EXPECT_EQ(StoredForm(ignored), Map({}));
}

// The two sizes and the threshold are alike in kind and default.
TEST(HalfTone, EachNumberHasItsOwnKey)
{
    const auto effect = Restored<HalfToneSettings>(Map({{"colourSize", 1.0}, {"dotSize", 2.0}, {"threshold", 3.0}}));
    EXPECT_EQ(effect.GetTypedSettings().GetColourSize(), 1.0);
    EXPECT_EQ(effect.GetTypedSettings().GetDotSize(), 2.0);
    EXPECT_EQ(effect.GetTypedSettings().GetThreshold(), 3.0);
}

} // namespace
