#include "Proc/EffectSettings/HistogramSettings.h"
#include "catalogue/Catalogue.h"
#include "support/TreeText.h"

using InputType = Ombrel::PhotoCore::IEffectSettings::InputType;
using Ombrel::PhotoCore::HistogramSettings;
using Ombrel::Proc::SettingsEffectHistogram;
using Support::List;
using Support::Map;

namespace Catalogue
{

std::vector<Effect> LevelsRows()
{
    return {
        {
            .className = "HistogramSettings",
            .classId = "EFFECT_HISTOGRAM",
            .inputType = InputType::One,
            .place = Place{59},
            .fields =
                {
                    UInt32("width", 256),
                    UInt32("heightLevel", 50),
                    UInt32("heightScale", 12),
                    Int32("sharpen", -1),
                    Enum("pixFmt", "RGB24", PixFmtNames(), -1,
                         &NumberIn<HistogramSettings, &SettingsEffectHistogram::m_pixFmt>),
                    Int64("flags", -1),
                },
        },
        {
            .className = "PosterizeSettings",
            .classId = "EFFECT_POSTERIZE",
            .inputType = InputType::One,
            .place = Place{69},
            .fields = {Bool("isPal", false), Int32("seed", 0), Int32("colors", 0), Float32("intensity", 0.0f)},
            .isRecordEmpty = true,
        },
        {
            .className = "GradientPosterizeSettings",
            .classId = "EFFECT_GRADIENT_POSTERIZE",
            .inputType = InputType::One,
            .place = Place{55},
            .fields = {UInt8("colorCount", 0)},
            .isRecordEmpty = true,
        },
        {
            .className = "GradientSettings",
            .classId = "EFFECT_GRADIENT",
            .inputType = InputType::One,
            .place = Place{56},
            .fields = {Other("gradient", Kind::ColorMap, List({}),
                             List({Map({{"key", 3}, {"value", "12ab56cd"}}), Map({{"key", 200}, {"value", "ff0000ff"}})}))},
            .isRecordEmpty = true,
        },
        {
            .className = "NegateVideoSettings",
            .classId = "EFFECT_NEGATE_VIDEO",
            .inputType = InputType::One,
            .place = Place{64},
            .fields = {OfNames(Other("mode", Kind::Set, List({}), List({"Red", "Alpha"})),
                               {{"Red", 1}, {"Green", 2}, {"Blue", 4}, {"Alpha", 8}}, 0)},
            .isRecordEmpty = true,
        },
        {
            .className = "ReplaceChromaSettings",
            .classId = "EFFECT_REPLACE_CHROMA",
            .inputType = InputType::One,
            .place = Place{72},
            .fields =
                {
                    Color("replaceColor", "ffffffff"),
                    Color("baseColor", "000000ff"),
                    UInt8("strength", 255),
                    UInt8("maxValue", 255),
                    UInt8("minValue", 0),
                    Float64("maxThreshold", 0.0),
                    Float64("minThreshold", 1.0),
                    Bool("useBaseColor", true),
                    Bool("keepLuma", true),
                    Bool("correctLuma", false),
                    Int32("x", 0),
                    Int32("y", 0),
                },
        },
        {
            .className = "AlphaExtractorSettings",
            .classId = "EFFECT_ALPHA_EXTRACTOR",
            .inputType = InputType::One,
            .place = Place{3},
            .fields = {},
        },
    };
}

} // namespace Catalogue
