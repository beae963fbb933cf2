#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "Proc/EffectSettings/IEffectSettings.h"
#include "Proc/Settings/Settings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

// Floats that are compared without a tolerance, by the effect and by its record.
namespace
{

using Ombrel::PropertyTree;
using Ombrel::PhotoCore::EffectClass;
using Ombrel::PhotoCore::EffectClasses;
using Ombrel::PhotoCore::IEffectSettings;
using Support::Map;
using Support::StoredForm;

struct Key
{
    const char* classId;
    const char* key;
};

constexpr Key KEYS[] = {
    {"EFFECT_BLUR", "devX"},
    {"EFFECT_BLUR", "devY"},
    {"EFFECT_BLUR", "scaleX"},
    {"EFFECT_BLUR", "scaleY"},
    {"EFFECT_BLUR_ADAPTIVE", "radius"},
    {"EFFECT_BLUR_ADAPTIVE", "sigma"},
    {"EFFECT_BLUR_BOKEH", "size"},
    {"EFFECT_BLUR_BOKEH", "bokehGain"},
    {"EFFECT_BLUR_BOKEH", "imageGain"},
    {"EFFECT_BLUR_BOKEH", "strength"},
    {"EFFECT_BLUR_BOKEH", "threshold"},
    {"EFFECT_BLUR_BOKEH", "bokehThreshold"},
    {"EFFECT_BLUR_BOKEH", "imageThreshold"},
    {"EFFECT_BLUR_MOTION", "sigma"},
    {"EFFECT_BLUR_MOTION", "angle"},
    {"EFFECT_BLUR_RADIAL", "x"},
    {"EFFECT_BLUR_RADIAL", "y"},
    {"EFFECT_BLUR_RADIAL", "strength"},
    {"EFFECT_BLUR_RADIAL", "angle"},
    {"EFFECT_DENOISE_CHROMA_LUMA", "lumaStrength"},
    {"EFFECT_DENOISE_CHROMA_LUMA", "chromaStrength"},
    {"EFFECT_DENOISE_CHROMA_LUMA", "lumaStrengthTemporal"},
    {"EFFECT_DENOISE_CHROMA_LUMA", "chromaStrengthTemporal"},
    {"EFFECT_DENOISE_DCT", "sigma"},
    {"EFFECT_DENOISE_OVERCOMPLETE_WAVELET", "lumaStrength"},
    {"EFFECT_DENOISE_OVERCOMPLETE_WAVELET", "chromaStrength"},
    {"EFFECT_GUIDED_FILTER", "eps"},
    {"EFFECT_DETAILS_EX", "strength"},
    {"EFFECT_SHARPEN", "level"},
    {"EFFECT_EDGE_DETECT", "lowThreshold"},
    {"EFFECT_EDGE_DETECT", "highThreshold"},
    {"EFFECT_REDUCE_LOCAL_LUMA", "strength"},
    {"EFFECT_REMOVE_BACKGROUND", "x"},
    {"EFFECT_REMOVE_BACKGROUND", "y"},
    {"EFFECT_REMOVE_BACKGROUND", "scaleX"},
    {"EFFECT_REMOVE_BACKGROUND", "scaleY"},
    {"EFFECT_FACE_THINNING", "strength"},
    {"EFFECT_EYE_EXTENDING", "strength"},
    {"EFFECT_ROTATE", "angle"},
    {"EFFECT_FISH_EYE", "deviation"},
    {"EFFECT_IMPLODE", "strength"},
    {"EFFECT_DIRECTIONAL_AREA_DEFORMATION", "strength"},
};

class ExactFloatsTest : public testing::TestWithParam<Key>
{
protected:
    // Not by the registry, which does not know every class.
    static std::shared_ptr<IEffectSettings> With(double value)
    {
        const auto classes = EffectClasses();
        const auto found = std::ranges::find(classes, std::string_view(GetParam().classId), &EffectClass::classId);
        if (found == classes.end())
        {
            throw std::logic_error("the library has no class of this id");
        }
        const std::shared_ptr<IEffectSettings> effect = found->create();
        effect->Deserialize(Map({{GetParam().key, value}}));
        return effect;
    }

    static bool AreEqual(const IEffectSettings& a, const IEffectSettings& b)
    {
        EXPECT_EQ(a.GetEffectSettings().IsEqualTo(b.GetEffectSettings()), a == b);
        return a == b;
    }
};

TEST_P(ExactFloatsTest, TheLeastDifferenceCounts)
{
    constexpr double tiny = 5e-324;
    EXPECT_TRUE(AreEqual(*With(0.3), *With(0.3)));
    EXPECT_FALSE(AreEqual(*With(0.3), *With(std::nextafter(0.3, 1.0))));
    EXPECT_FALSE(AreEqual(*With(std::nextafter(0.3, 1.0)), *With(0.3)));
    EXPECT_FALSE(AreEqual(*With(0.0), *With(tiny)));
    EXPECT_TRUE(AreEqual(*With(0.0), *With(-0.0)));
}

TEST_P(ExactFloatsTest, ANaNEqualsNothingAndIsAlwaysWritten)
{
    const auto effect = With(std::nan(""));
    EXPECT_FALSE(AreEqual(*effect, *effect->Clone()));
    EXPECT_FALSE(AreEqual(*effect, *With(0.3)));
    EXPECT_FALSE(AreEqual(*With(0.3), *effect));
    EXPECT_TRUE(StoredForm(*effect).contains(GetParam().key));
}

INSTANTIATE_TEST_SUITE_P(All, ExactFloatsTest, testing::ValuesIn(KEYS),
                         [](const auto& key) { return std::string(key.param.classId) + '_' + key.param.key; });

} // namespace
