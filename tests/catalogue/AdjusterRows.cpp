#include "catalogue/Catalogue.h"

using InputType = Ombrel::PhotoCore::IEffectSettings::InputType;

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

std::vector<Effect> AdjusterRows()
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
            .className = "SmartBlurSettings",
            .classId = "EFFECT_SMART_BLUR",
            .inputType = InputType::One,
            .place = Place{81},
            .fields = SmartBlurFields(),
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
    };
}

} // namespace Catalogue
