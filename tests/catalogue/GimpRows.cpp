#include "catalogue/Catalogue.h"

using InputType = Ombrel::PhotoCore::IEffectSettings::InputType;

namespace Catalogue
{

std::vector<Effect> GimpRows()
{
    return {
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
    };
}

} // namespace Catalogue
