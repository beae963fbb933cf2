#include "Proc/EffectSettings/IEffectSettings.h"
#include "Proc/Settings/Settings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

using Ombrel::PropertyTree;
using Ombrel::PhotoCore::IEffectSettings;
using Support::List;
using Support::Map;
using Support::StoredForm;

struct Changed
{
    std::string classId;
    PropertyTree values; // of every key, none the default
};

void PrintTo(const Changed& changed, std::ostream* out)
{
    *out << changed.classId;
}

class ClosedRecordsTest : public testing::TestWithParam<Changed>
{
};

// These records are neutral as by default, and any one value makes them something else.
TEST_P(ClosedRecordsTest, AreEmptyOnlyAsByDefault)
{
    for (const auto& [key, value] : GetParam().values.getMap())
    {
        const auto effect = IEffectSettings::CreateEffectSettings(GetParam().classId);
        EXPECT_TRUE(effect->GetEffectSettings().IsEmpty());
        effect->Deserialize(Map({{key, value}}));
        EXPECT_FALSE(effect->GetEffectSettings().IsEmpty()) << key;
        EXPECT_FALSE(effect->IsEmpty());
        effect->Deserialize(Map({}));
        EXPECT_TRUE(effect->GetEffectSettings().IsEmpty()) << key;
        EXPECT_FALSE(effect->IsEmpty());
    }
}

TEST_P(ClosedRecordsTest, ListEveryKeyHere)
{
    const auto effect = IEffectSettings::CreateEffectSettings(GetParam().classId);
    effect->Deserialize(GetParam().values);
    EXPECT_EQ(StoredForm(*effect), GetParam().values);
    EXPECT_EQ(effect->GetPropertyAccess()->ListProperties().size(), GetParam().values.getMap().size());
}

INSTANTIATE_TEST_SUITE_P(
    All, ClosedRecordsTest,
    testing::Values(
        Changed{"EFFECT_BLUR", Map({{"algorithm", "Median"},
                                    {"scaleType", "Relative"},
                                    {"pixelFormat", "BGRA"},
                                    {"kernelLength", 3},
                                    {"iterations", 2},
                                    {"planesMask", 1},
                                    {"devX", 0.5},
                                    {"devY", 0.5},
                                    {"scaleX", 2.0},
                                    {"scaleY", 2.0}})},
        Changed{
            "EFFECT_BLUR_RADIAL",
            Map({{"mode", "Linear"}, {"x", 0.5}, {"y", 0.5}, {"strength", 0.5}, {"angle", 90.0}, {"trace", List({Map({})})}})},
        Changed{"EFFECT_COLOR_FILTER", Map({{"preset", "enPrasetMultiply"},
                                            {"filterId", 1},
                                            {"RFactor", 0.5},
                                            {"GFactor", 0.5},
                                            {"BFactor", 0.5},
                                            {"colorFactor", 0.5},
                                            {"intensity", 0.5}})},
        Changed{"EFFECT_COLOR_MIX_BURN", Map({{"strength", 0.5}})},
        Changed{"EFFECT_DENOISE_CHROMA_LUMA", Map({{"lumaStrength", 1.0},
                                                   {"chromaStrength", 1.0},
                                                   {"lumaStrengthTemporal", 1.0},
                                                   {"chromaStrengthTemporal", 1.0}})},
        Changed{"EFFECT_DENOISE_DCT", Map({{"sigma", 1.0}, {"overlapSize", 1}, {"blockSizeBits", 3}})},
        Changed{"EFFECT_DENOISE_OVERCOMPLETE_WAVELET", Map({{"depth", 1}, {"lumaStrength", 1.0}, {"chromaStrength", 1.0}})},
        Changed{"EFFECT_EDGE_DETECT", Map({{"mode", "Wires"}, {"lowThreshold", 0.1}, {"highThreshold", 0.9}})},
        Changed{"EFFECT_EMBOSS", Map({{"x", 1}, {"y", 1}, {"colored", true}})},
        Changed{"EFFECT_GIMP_COLORIZE", Map({{"hue", 0.5},
                                             {"saturation", 0.5},
                                             {"lightness", 0.5},
                                             {"red", 0.5},
                                             {"green", 0.5},
                                             {"blue", 0.5},
                                             {"intensity", 0.5}})},
        Changed{"EFFECT_GIMP_COLOR_CORRECTION", Map({{"brightness", 0.5}, {"contrast", 0.5}})},
        Changed{"EFFECT_GIMP_COLOR_TEMPERATURE",
                Map({{"originalTemperature", 5000.0}, {"intendedTemperature", 5000.0}, {"intensity", 0.5}})},
        Changed{"EFFECT_GIMP_HUE_SATURATION", Map({{"hueMaster", 0.5},
                                                   {"lightnessMaster", 0.5},
                                                   {"saturationMaster", 0.5},
                                                   {"intensity", 0.5},
                                                   {"overlap", 0.5}})},
        Changed{"EFFECT_GIMP_SHADOWS_HIGHTLIGHTS", Map({{"shadows", 0.5},
                                                        {"shadowsColorCorrect", 0.5},
                                                        {"highlights", 0.5},
                                                        {"highlightsColorCorrect", 0.5},
                                                        {"whitepoint", 0.5},
                                                        {"compress", 0.5},
                                                        {"intensity", 0.5}})},
        Changed{"EFFECT_HALF_TONE", Map({{"backgroundColor", "00000000"},
                                         {"dotColor", "ff0000ff"},
                                         {"colourSize", 1.0},
                                         {"dotSize", 1.0},
                                         {"threshold", 0.5},
                                         {"angle", 45}})},
        Changed{"EFFECT_NEGATE_VIDEO", Map({{"mode", List({"Blue"})}})},
        Changed{"EFFECT_NOISE_VIDEO", Map({{"method", "Uniform"}, {"seed", 1}, {"strength", 1}})},
        Changed{"EFFECT_POP_ART", Map({{"saturation", 0.5},
                                       {"hue", 0.5},
                                       {"offset", 0.5},
                                       {"scale", 0.5},
                                       {"levels", 4},
                                       {"amountVertical", 2},
                                       {"amountHorizontal", 2},
                                       {"invertScale", true},
                                       {"intensity", 0.5},
                                       {"disproportionPolicy", "Expand"}})},
        Changed{"EFFECT_POSTERIZE", Map({{"isPal", true}, {"seed", 1}, {"colors", 4}, {"intensity", 0.5}})},
        Changed{"EFFECT_RETRO_COLORS", Map({{"type", "en70s"}, {"intensity", 0.5}})},
        Changed{"EFFECT_SHARPEN", Map({{"level", 1.0}})},
        Changed{"EFFECT_VIGNETTE_FILTER", Map({{"form", "enForm3"},
                                               {"smooth", "enCos"},
                                               {"aspect", "enOgn"},
                                               {"x0", 0.5},
                                               {"y0", 0.5},
                                               {"RInternal", 0.25},
                                               {"RExternal", 0.75},
                                               {"color", "ff0000ff"},
                                               {"intensity", 0.5}})}),
    [](const auto& row) { return row.param.classId; });

} // namespace
