#include "catalogue/Catalogue.h"

#include "Proc/EffectSettings/GrayscaleSettings.h"
#include "Proc/EffectSettings/RetroColorsSettings.h"

using Ombrel::PhotoCore::GrayscaleSettings;
using Ombrel::PhotoCore::IEffectSettings;
using Ombrel::PhotoCore::RetroColorsSettings;
using InputType = IEffectSettings::InputType;

namespace Catalogue
{
namespace
{

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

std::vector<Effect> ToningRows()
{
    return {
        {
            .className = "AutoEnhanceSettings",
            .classId = "EFFECT_AUTO_ENHANCE",
            .inputType = InputType::One,
            .place = Place{4},
            .fields =
                {
                    Float64("intensity", 100.0),
                },
        },
        {
            .className = "BalanceLumaSettings",
            .classId = "EFFECT_BALANCE_LUMA",
            .inputType = InputType::One,
            .place = Place{6},
            .fields =
                {
                    Int32("shadows", 0),
                    Int32("highlights", 0),
                    Int32("exposure", 0),
                    Bool("autoContrast", false),
                },
            .isEmpty = true,
            .isRecordEmpty = true,
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
            .className = "TintTemperatureSettings",
            .classId = "EFFECT_TINT_TEMPERATURE",
            .inputType = InputType::One,
            .place = Place{84},
            .fields =
                {
                    Int32("tint", 0),
                    Int32("temperature", 0),
                },
            .isEmpty = true,
            .isRecordEmpty = true,
        },
        {
            .className = "WhiteBalanceSettings",
            .classId = "EFFECT_WHITE_BALANCE_PHOTO",
            .inputType = InputType::One,
            .place = Place{90},
            .fields =
                {
                    Color("color", "000000ff"),
                },
            .isRecordEmpty = true,
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
    };
}

} // namespace Catalogue
