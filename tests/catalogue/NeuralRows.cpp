#include "Proc/EffectSettings/SegmentationSettings.h"
#include "catalogue/Catalogue.h"

using InputType = Ombrel::PhotoCore::IEffectSettings::InputType;
using Ombrel::PhotoCore::IEffectSettings;
using Ombrel::PhotoCore::SegmentationSettings;

namespace Catalogue
{
namespace
{

std::int32_t AlgorithmOf(const IEffectSettings& effect)
{
    return static_cast<std::int32_t>(dynamic_cast<const SegmentationSettings&>(effect).GetTypedSettings().m_algorithm);
}

Effect SegmentationRow()
{
    return {
        .className = "SegmentationSettings",
        .classId = "EFFECT_SEGMENTATION",
        .inputType = InputType::Two,
        .place = Place{92},
        .fields =
            {
                Enum("algorithm", "GridGraph", {{"Auto", 0}, {"GrabCut", 1}, {"GridGraph", 2}, {"Watershed", 3}}, 0,
                     &AlgorithmOf),
                Int32("foreground", 255),
                Int32("background", 0),
                Int32("alpha", 255),
                Int32("smooth", 0),
                Bool("keepSelection", false),
                Bool("showProgress", true),
                NotCompared(Bool("demoMode", false)),
                NotCompared(Color("demoColor", "00ff00ff")),
            },
    };
}

Effect RemoveBackgroundRow()
{
    return {
        .className = "RemoveBackgroundSettings",
        .classId = "EFFECT_REMOVE_BACKGROUND",
        .inputType = InputType::Var,
        .place = Place{71},
        .fields =
            {
                Int32("smooth", 0),
                Int32("morph", 0),
                Int32("adapt", 0),
                Float64("x", 0.5),
                Float64("y", 0.5),
                Float64("scaleX", 1.0),
                Float64("scaleY", 1.0),
                AlwaysWritten(
                    NotCompared(Record("backgroundSettings", {String("bgFileName", ""), Color("bgColor", "000000ff")}))),
            },
    };
}

} // namespace

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
            .filledBy = Keys{"modelName"},
        },
        {
            .className = "ImageInpainterSettings",
            .classId = "EFFECT_IMAGE_INPAINTER",
            .inputType = InputType::Two,
            .place = Place{61},
            .fields = {},
        },
        {
            .className = "InpaintSettings",
            .classId = "EFFECT_INPAINT",
            .inputType = InputType::Two,
            .place = Place{62},
            .fields = {Tolerant(Float64("lookupSize", 0.0), 1e-5), Int32("patchSize", 11)},
        },
        {
            .className = "MattingSettings",
            .classId = "EFFECT_MATTING",
            .inputType = InputType::One,
            .place = Place::None,
            .fields = {},
        },
        {
            .className = "ReduceLocalLumaSettings",
            .classId = "EFFECT_REDUCE_LOCAL_LUMA",
            .inputType = InputType::Two,
            .place = Place{70},
            .fields = {Int32("x", 0), Int32("y", 0), Int32("width", 0), Int32("height", 0), Float64("strength", 1.0)},
        },
        RemoveBackgroundRow(),
        SegmentationRow(),
    };
}

} // namespace Catalogue
