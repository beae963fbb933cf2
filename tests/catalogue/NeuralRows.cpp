#include "catalogue/Catalogue.h"

using InputType = Ombrel::PhotoCore::IEffectSettings::InputType;

namespace Catalogue
{

std::vector<Effect> NeuralRows()
{
    return {
        {
            .className = "DeepAdjusterSettings",
            .classId = "EFFECT_DEEP_ADJUSTER",
            .inputType = InputType::One,
            .place = Place{24},
            .fields =
                {
                    NotCompared(Int32("brightness", 0)),
                    NotCompared(Int32("contrast", 0)),
                    NotCompared(Int32("vibrance", 0)),
                    NotCompared(Int32("exposure", 0)),
                    NotCompared(Int32("shadows", 0)),
                    NotCompared(Int32("hightlights", 0)),
                },
        },
        {
            .className = "DeepAlignerSettings",
            .classId = "EFFECT_DEEP_ALIGNER",
            .inputType = InputType::One,
            .place = Place{25},
            .fields = {NotCompared(Float64("angle", 0.0)), NotCompared(Bool("horizonDetected", false))},
        },
        {
            .className = "DeepAutoRetoucherSettings",
            .classId = "EFFECT_DEEP_AUTO_RETOUCHER",
            .inputType = InputType::One,
            .place = Place{26},
            .fields = {},
        },
        {
            .className = "DeepColorizerSettings",
            .classId = "EFFECT_DEEP_COLORIZER",
            .inputType = InputType::One,
            .place = Place{27},
            .fields = {},
        },
        {
            .className = "DeepDenoiserSettings",
            .classId = "EFFECT_DEEP_DENOISER",
            .inputType = InputType::One,
            .place = Place{28},
            .fields = {},
        },
        {
            .className = "DeepEnhancerSettings",
            .classId = "EFFECT_DEEP_ENHANCER",
            .inputType = InputType::One,
            .place = Place{30},
            .fields = {},
        },
        {
            .className = "DeepImageEnhancerSettings",
            .classId = "EFFECT_DEEP_IMAGE_ENHANCER",
            .inputType = InputType::One,
            .place = Place{29},
            .fields = {},
        },
        {
            .className = "DeepLumaUpscalerSettings",
            .classId = "EFFECT_DEEP_LUMA_UPSCALER",
            .inputType = InputType::One,
            .place = Place{31},
            .fields = {},
        },
        {
            .className = "DeepRestorerSettings",
            .classId = "EFFECT_DEEP_RESTORER",
            .inputType = InputType::One,
            .place = Place{32},
            .fields = {},
        },
        {
            .className = "DeepSuperResolutorSettings",
            .classId = "EFFECT_DEEP_SUPER_RESOLUTOR",
            .inputType = InputType::One,
            .place = Place{33},
            .fields = {},
        },
        {
            .className = "DreamscopeSettings",
            .classId = "EFFECT_DREAMSCOPE",
            .inputType = InputType::One,
            .place = Place{40},
            .fields =
                {
                    String("modelName", ""),
                    Bool("model64Bit", true),
                    Int32("workingSize", 768),
                    NotCompared(Int32("denoiseChroma", 30)),
                    NotCompared(Float64("denoiseBlurRadius", 5.0)),
                    NotCompared(Int32("denoiseBlurSigma", 10)),
                },
            .isRecordEmpty = true,
        },
    };
}

} // namespace Catalogue
