#include "Proc/EffectSettings/ColorFilterSettings.h"
#include "Proc/EffectSettings/ColorReduceSettings.h"
#include "Proc/EffectSettings/GrayscaleSettings.h"
#include "Proc/EffectSettings/RetroColorsSettings.h"
#include "catalogue/Catalogue.h"
#include "support/TreeText.h"

using InputType = Ombrel::PhotoCore::IEffectSettings::InputType;
using Ombrel::PhotoCore::ColorFilterSettings;
using Ombrel::PhotoCore::ColorReduceSettings;
using Ombrel::PhotoCore::GrayscaleSettings;
using Ombrel::PhotoCore::IEffectSettings;
using Ombrel::PhotoCore::RetroColorsSettings;
using Support::List;
using Support::Map;

namespace Catalogue
{
namespace
{

std::int32_t PresetOf(const IEffectSettings& effect)
{
    return static_cast<std::int32_t>(dynamic_cast<const ColorFilterSettings&>(effect).GetTypedSettings().GetPreset());
}

std::int32_t ReducedColorOf(const IEffectSettings& effect)
{
    return static_cast<std::int32_t>(dynamic_cast<const ColorReduceSettings&>(effect).GetTypedSettings().m_reducedColor);
}

std::vector<EnumName> PresetNames()
{
    return {
        {"enPraset01", 0},  {"enPraset02", 1},        {"enPraset03", 2},  {"enPraset04", 3},  {"enPraset05", 4},
        {"enPraset06", 5},  {"enPraset07", 6},        {"enPraset08", 7},  {"enPraset09", 8},  {"enPraset10", 9},
        {"enPraset11", 10}, {"enPraset12", 11},       {"enPraset13", 12}, {"enPraset14", 13}, {"enPraset15", 14},
        {"enPraset16", 15}, {"enPraset17", 16},       {"enPraset18", 17}, {"enPraset19", 18}, {"enPraset20", 19},
        {"enPraset21", 20}, {"enPraset22", 21},       {"enPraset23", 22}, {"enPraset24", 23}, {"enPraset25", 24},
        {"enPraset26", 25}, {"enPraset27", 26},       {"enPraset28", 27}, {"enPraset29", 28}, {"enPraset30", 29},
        {"enPraset31", 30}, {"enPraset32", 31},       {"enPraset33", 32}, {"enPraset34", 33}, {"enPraset35", 34},
        {"enPraset36", 35}, {"enPrasetMultiply", 36},
    };
}

std::int32_t GrayscaleMethodOf(const IEffectSettings& effect)
{
    return static_cast<std::int32_t>(dynamic_cast<const GrayscaleSettings&>(effect).GetTypedSettings().m_method);
}

std::int32_t RetroTypeOf(const IEffectSettings& effect)
{
    return static_cast<std::int32_t>(dynamic_cast<const RetroColorsSettings&>(effect).GetTypedSettings().GetType());
}

std::vector<EnumName> GrayscaleMethodNames()
{
    return {
        {"Empty", 0},          {"Average", 1},    {"Brightness", 2},      {"Lightness", 3},  {"MeanSquare", 4},
        {"MeanRootSquare", 5}, {"Rec601Luma", 6}, {"Rec601Luminance", 7}, {"Rec709Luma", 8}, {"Rec709Luminance", 9},
    };
}

} // namespace

std::vector<Effect> ColourMappingRows()
{
    return {
        {
            .className = "AlphaExtractorSettings",
            .classId = "EFFECT_ALPHA_EXTRACTOR",
            .inputType = InputType::One,
            .place = Place{3},
            .fields = {},
        },
        {
            .className = "BiColorToningSettings",
            .classId = "EFFECT_BI_COLOR_TONING",
            .inputType = InputType::One,
            .place = Place{7},
            .fields =
                {
                    Color("colorFirst", "000000ff"),
                    Color("colorSecond", "ffffffff"),
                },
        },
        {
            .className = "BlackWhiteSettings",
            .classId = "EFFECT_BLACK_WHITE",
            .inputType = InputType::One,
            .place = Place{8},
            .fields =
                {
                    Float64("threshold", 0.5),
                    Color("black", "000000ff"),
                    Color("white", "ffffffff"),
                },
        },
        {
            .className = "ColorChannelMixerSettings",
            .classId = "EFFECT_COLOR_CHANNEL_MIXER",
            .inputType = InputType::One,
            .place = Place{17},
            .fields =
                {
                    Float64("RR", 1.0),
                    Float64("RG", 0.0),
                    Float64("RB", 0.0),
                    Float64("RA", 0.0),
                    Float64("GR", 0.0),
                    Float64("GG", 1.0),
                    Float64("GB", 0.0),
                    Float64("GA", 0.0),
                    Float64("BR", 0.0),
                    Float64("BG", 0.0),
                    Float64("BB", 1.0),
                    Float64("BA", 0.0),
                    Float64("AR", 0.0),
                    Float64("AG", 0.0),
                    Float64("AB", 0.0),
                    Float64("AA", 1.0),
                },
            .isRecordEmpty = true,
        },
        {
            .className = "ColorFilterSettings",
            .classId = "EFFECT_COLOR_FILTER",
            .inputType = InputType::One,
            .place = Place{20},
            .fields =
                {
                    Enum("preset", "enPraset01", PresetNames(), 0, PresetOf),
                    Int32("filterId", 0),
                    Float32("RFactor", 1.0f),
                    Float32("GFactor", 1.0f),
                    Float32("BFactor", 1.0f),
                    Float32("colorFactor", 1.0f),
                    Float32("intensity", 0.0f),
                },
            .isRecordEmpty = true,
        },
        {
            .className = "ColorMixBurnSettings",
            .classId = "EFFECT_COLOR_MIX_BURN",
            .inputType = InputType::One,
            .place = Place{21},
            .fields =
                {
                    Float64("strength", 0.0),
                },
            .isRecordEmpty = true,
        },
        {
            .className = "ColorReduceSettings",
            .classId = "EFFECT_COLOR_REDUCE",
            .inputType = InputType::One,
            .place = Place{19},
            .fields =
                {
                    Float64("threshold", 1.2),
                    Enum("reducedColor", "Red", {{"Red", 0}, {"Green", 1}, {"Blue", 2}}, 0, ReducedColorOf),
                },
        },
        {
            .className = "ColoredGlassSettings",
            .classId = "EFFECT_COLORED_GLASS",
            .inputType = InputType::One,
            .place = Place{18},
            .fields =
                {
                    Color("color", "000000ff"),
                    Int32("alpha", 0),
                },
            .isRecordEmpty = true,
            .filledBy = Keys{"alpha"},
        },
        {
            .className = "ColorspaceConverterSettings",
            .classId = "EFFECT_COLORSPACE_CONVERTER",
            .inputType = InputType::One,
            .place = Place{22},
            .fields =
                {
                    UInt8("padColorR", 0),
                    UInt8("padColorG", 0),
                    UInt8("padColorB", 0),
                    Bool("hasAlpha", false),
                    Bool("multiplyAlpha", false),
                    Bool("forceDropAlpha", false),
                    Appended(
                        OfNames(Other("requiredFormats", Kind::List, List({}), List({"RGB24", "BGRA"})), PixFmtNames(), -1)),
                },
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
            .className = "GrayscaleSettings",
            .classId = "EFFECT_GRAYSCALE",
            .inputType = InputType::One,
            .place = Place{57},
            .fields =
                {
                    Enum("method", "Empty", GrayscaleMethodNames(), 0, GrayscaleMethodOf),
                },
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
            .className = "PosterizeSettings",
            .classId = "EFFECT_POSTERIZE",
            .inputType = InputType::One,
            .place = Place{69},
            .fields = {Bool("isPal", false), Int32("seed", 0), Int32("colors", 0), Float32("intensity", 0.0f)},
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
            .className = "RetroColorsSettings",
            .classId = "EFFECT_RETRO_COLORS",
            .inputType = InputType::One,
            .place = Place{75},
            .fields =
                {
                    Enum("type", "enRetro", {{"enRetro", 0}, {"en70s", 1}, {"enGrayscale", 2}, {"enSepia", 3}}, 0, RetroTypeOf),
                    Float32("intensity", 0.0f),
                },
            .isRecordEmpty = true,
        },
        {
            .className = "SepiaSettings",
            .classId = "EFFECT_SEPIA",
            .inputType = InputType::One,
            .place = Place{77},
            .fields =
                {
                    Float64("threshold", 0.0),
                },
            .isRecordEmpty = true,
        },
        {
            .className = "SplitToningSettings",
            .classId = "EFFECT_SPLIT_TONING",
            .inputType = InputType::One,
            .place = Place{82},
            .fields =
                {
                    Color("colorFirst", "000000ff"),
                    Color("colorSecond", "ffffffff"),
                },
        },
    };
}

} // namespace Catalogue
