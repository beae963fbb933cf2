#include "Proc/EffectSettings/HistogramSettings.h"
#include "catalogue/Catalogue.h"

using InputType = Ombrel::PhotoCore::IEffectSettings::InputType;
using Ombrel::PhotoCore::HistogramSettings;
using Ombrel::Proc::SettingsEffectHistogram;

namespace Catalogue
{
namespace
{

std::vector<Field> ColorBalanceAutoFields()
{
    return {Bool("whiteBalance", false), Bool("lightBalance", false), Int32("exposure", 0)};
}

std::vector<Field> ColorBalanceFields()
{
    return {Int32("brightness", 0), Int32("contrast", 0),   Int32("saturation", 0), Int32("hue", 0),        Int32("gamma", 0),
            Int32("gammaRed", 0),   Int32("gammaGreen", 0), Int32("gammaBlue", 0),  Int32("gammaWeight", 0)};
}

std::vector<Field> StrengthFields()
{
    return {Int32("strength", 0)};
}

std::vector<Field> SmartBlurFields()
{
    return {Int32("lumaRadius", 0),   Int32("lumaBlur", 0),   Int32("lumaSharpen", 0),   Int32("lumaThreshold", 0),
            Int32("chromaRadius", 0), Int32("chromaBlur", 0), Int32("chromaSharpen", 0), Int32("chromaThreshold", 0)};
}

} // namespace

std::vector<Effect> ColourCorrectionRows()
{
    return {
        {
            .className = "AdjusterSettings",
            .classId = "EFFECT_ADJUSTER",
            .inputType = InputType::One,
            .place = Place{2},
            .fields =
                {
                    Record("colorBalanceAuto", ColorBalanceAutoFields()),
                    Record("colorBalance", ColorBalanceFields()),
                    Record("vibrance", StrengthFields()),
                    Record("detailsEnhance", StrengthFields()),
                    Record("smartBlur", SmartBlurFields(), {{"lumaRadius", 100}, {"chromaRadius", 100}}),
                    Float64("colorizeHue", 0.0),
                    Float64("colorizeSaturation", 0.0),
                    Float64("colorizeLightness", 0.0),
                    Float64("colorizeIntensity", 1.0),
                    Float64("temperature", 0.0),
                    Float64("temperatureIntensity", 1.0),
                    Float64("brightness", 0.0),
                    Float64("contrast", 0.0),
                    Float64("gamma", 0.0),
                    Float64("hue", 0.0),
                    Float64("hueIntensity", 1.0),
                    Float64("highlights", 0.0),
                    Float64("highlightsIntensity", 1.0),
                    Float64("shadows", 0.0),
                    Float64("shadowsIntensity", 1.0),
                },
        },
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
            .className = "ColorBalanceAutoSettings",
            .classId = "EFFECT_COLOR_BALANCE_AUTO",
            .inputType = InputType::One,
            .place = Place{15},
            .fields = ColorBalanceAutoFields(),
            .isEmpty = true,
            .isRecordEmpty = true,
        },
        {
            .className = "ColorBalanceSettings",
            .classId = "EFFECT_COLOR_BALANCE",
            .inputType = InputType::One,
            .place = Place{16},
            .fields = ColorBalanceFields(),
            .isEmpty = true,
            .isRecordEmpty = true,
        },
        {
            .className = "DetailsEnhanceSettings",
            .classId = "EFFECT_DETAILS",
            .inputType = InputType::One,
            .place = Place{34},
            .fields = StrengthFields(),
            .isEmpty = true,
            .isRecordEmpty = true,
        },
        {
            .className = "GIMPColorCorrectionSettings",
            .classId = "EFFECT_GIMP_COLOR_CORRECTION",
            .inputType = InputType::One,
            .place = Place{50},
            .fields =
                {
                    Float32("brightness", 0.0f),
                    Float32("contrast", 0.0f),
                },
            .isRecordEmpty = true,
        },
        {
            .className = "GIMPColorTemperatureSettings",
            .classId = "EFFECT_GIMP_COLOR_TEMPERATURE",
            .inputType = InputType::One,
            .place = Place{51},
            .fields =
                {
                    Float32("originalTemperature", 6500.0f),
                    Float32("intendedTemperature", 6500.0f),
                    Float32("intensity", 1.0f),
                },
            .isRecordEmpty = true,
        },
        {
            .className = "GIMPColorizeSettings",
            .classId = "EFFECT_GIMP_COLORIZE",
            .inputType = InputType::One,
            .place = Place{52},
            .fields =
                {
                    Float32("hue", 0.0f),
                    Float32("saturation", 0.0f),
                    Float32("lightness", 0.0f),
                    Float32("red", 0.0f),
                    Float32("green", 0.0f),
                    Float32("blue", 0.0f),
                    Float32("intensity", 0.0f),
                },
            .isRecordEmpty = true,
        },
        {
            .className = "GIMPHueSaturationSettings",
            .classId = "EFFECT_GIMP_HUE_SATURATION",
            .inputType = InputType::One,
            .place = Place{53},
            .fields =
                {
                    Float32("hueMaster", 0.0f),
                    Float32("lightnessMaster", 0.0f),
                    Float32("saturationMaster", 0.0f),
                    Float32("intensity", 1.0f),
                    Float32("overlap", 0.0f),
                },
            .isRecordEmpty = true,
        },
        {
            .className = "GIMPShadowsHightlightsSettings",
            .classId = "EFFECT_GIMP_SHADOWS_HIGHTLIGHTS",
            .inputType = InputType::One,
            .place = Place{54},
            .fields =
                {
                    Float32("shadows", 0.0f),
                    Float32("shadowsColorCorrect", 0.0f),
                    Float32("highlights", 0.0f),
                    Float32("highlightsColorCorrect", 0.0f),
                    Float32("whitepoint", 0.0f),
                    Float32("compress", 0.0f),
                    Float32("intensity", 1.0f),
                },
            .isRecordEmpty = true,
        },
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
            .className = "SmartBlurSettings",
            .classId = "EFFECT_SMART_BLUR",
            .inputType = InputType::One,
            .place = Place{81},
            .fields = SmartBlurFields(),
            .isEmpty = true,
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
            .className = "VibranceSettings",
            .classId = "EFFECT_VIBRANCE",
            .inputType = InputType::One,
            .place = Place{87},
            .fields = StrengthFields(),
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
    };
}

} // namespace Catalogue
