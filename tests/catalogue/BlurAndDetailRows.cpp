#include "Proc/EffectSettings/BlurRadialSettings.h"
#include "Proc/EffectSettings/BlurSettings.h"
#include "Proc/EffectSettings/EdgeDetectSettings.h"
#include "Proc/EffectSettings/NoiseVideoSettings.h"
#include "catalogue/Catalogue.h"
#include "support/TreeText.h"

using InputType = Ombrel::PhotoCore::IEffectSettings::InputType;
using Ombrel::PhotoCore::BlurRadialSettings;
using Ombrel::PhotoCore::BlurSettings;
using Ombrel::PhotoCore::EdgeDetectSettings;
using Ombrel::PhotoCore::NoiseVideoSettings;
using Ombrel::Proc::SettingsEffectBlur;
using Ombrel::Proc::SettingsEffectBlurRadial;
using Ombrel::Proc::SettingsEffectEdgeDetect;
using Ombrel::Proc::SettingsEffectNoiseVideo;
using Support::List;
using Support::Map;

namespace Catalogue
{

std::vector<Field> RadialBlurFields(NumberOf mode)
{
    return {
        Enum("mode", "Radial", {{"Radial", 0}, {"Linear", 1}, {"Custom", 2}}, 0, std::move(mode)),
        Float64("x", 0.0),
        Float64("y", 0.0),
        Float64("strength", 0.0),
        Float64("angle", 0.0),
        // No coordinate is 0, which is left out when a list is stored but not when it is shown.
        Other("trace", Kind::List, List({}), List({Map({{"x", 3}, {"y", -4}}), Map({{"x", 8}, {"y", 9}})})),
    };
}

std::vector<Field> NoiseFields(NumberOf method)
{
    return {
        Enum("method", "Gaussian",
             {{"Gaussian", 0},
              {"MultiplicativeGaussianNoise", 1},
              {"Uniform", 2},
              {"Impulse", 3},
              {"Laplacian", 4},
              {"Poisson", 5}},
             0, std::move(method)),
        Int32("seed", 0),
        Int32("strength", 0),
    };
}

std::vector<Effect> BlurAndDetailRows()
{
    return {
        {
            .className = "BlurAdaptiveSettings",
            .classId = "EFFECT_BLUR_ADAPTIVE",
            .inputType = InputType::One,
            .place = Place{9},
            .fields = {Float64("radius", 3.0), Float64("sigma", 1.0)},
        },
        {
            .className = "BlurBokehSettings",
            .classId = "EFFECT_BLUR_BOKEH",
            .inputType = InputType::One,
            .place = Place{10},
            .fields =
                {
                    String("bokeh", ""),
                    Float64("size", 0.05),
                    Float64("bokehGain", 5.0),
                    Float64("imageGain", 5.0),
                    Float64("strength", 0.0),
                    Float64("threshold", 0.5),
                    Float64("bokehThreshold", 0.75),
                    Float64("imageThreshold", 0.75),
                },
            .isRecordEmpty = true,
            .filledBy = Keys{},
        },
        {
            .className = "BlurMotionSettings",
            .classId = "EFFECT_BLUR_MOTION",
            .inputType = InputType::One,
            .place = Place{11},
            .fields = {Int32("radius", 0), Float64("sigma", 0.0), Float64("angle", 0.0)},
            .isRecordEmpty = true,
            .filledBy = Keys{"radius"},
        },
        {
            .className = "BlurRadialSettings",
            .classId = "EFFECT_BLUR_RADIAL",
            .inputType = InputType::One,
            .place = Place{12},
            .fields = RadialBlurFields(&NumberIn<BlurRadialSettings, &SettingsEffectBlurRadial::m_mode>),
            .isRecordEmpty = true,
        },
        {
            .className = "BlurSettings",
            .classId = "EFFECT_BLUR",
            .inputType = InputType::One,
            .place = Place{13},
            .fields =
                {
                    Enum("algorithm", "Gaussian", {{"Homogeneous", 0}, {"Gaussian", 1}, {"Median", 2}, {"Bilateral", 3}}, 1,
                         &NumberIn<BlurSettings, &SettingsEffectBlur::GetAlgorithm>),
                    Enum("scaleType", "Absolute", {{"Absolute", 0}, {"Relative", 1}, {"RelativeMax", 2}, {"RelativeMin", 3}}, 0,
                         &NumberIn<BlurSettings, &SettingsEffectBlur::GetScaleType>),
                    Enum("pixelFormat", "None", PixFmtNames(), -1,
                         &NumberIn<BlurSettings, &SettingsEffectBlur::GetPixelFormat>),
                    Int32("kernelLength", 0),
                    Int32("iterations", 1),
                    Int32("planesMask", -1),
                    Float64("devX", 0.0),
                    Float64("devY", 0.0),
                    Float64("scaleX", 1.0),
                    Float64("scaleY", 1.0),
                },
            .isRecordEmpty = true,
        },
        {
            .className = "DenoiseChromaLumaSettings",
            .classId = "EFFECT_DENOISE_CHROMA_LUMA",
            .inputType = InputType::One,
            .place = Place{36},
            .fields =
                {
                    Float64("lumaStrength", 0.0),
                    Float64("chromaStrength", 0.0),
                    Float64("lumaStrengthTemporal", 0.0),
                    Float64("chromaStrengthTemporal", 0.0),
                },
            .isRecordEmpty = true,
        },
        {
            .className = "DenoiseDCTSettings",
            .classId = "EFFECT_DENOISE_DCT",
            .inputType = InputType::One,
            .place = Place{37},
            .fields = {Float64("sigma", 0.0), Int32("overlapSize", 0), Int32("blockSizeBits", 0)},
            .isRecordEmpty = true,
        },
        {
            .className = "DenoiseOvercompleteWaveletSettings",
            .classId = "EFFECT_DENOISE_OVERCOMPLETE_WAVELET",
            .inputType = InputType::One,
            .place = Place{38},
            .fields = {Int32("depth", 0), Float64("lumaStrength", 0.0), Float64("chromaStrength", 0.0)},
            .isRecordEmpty = true,
        },
        {
            .className = "DetailsEnhanceExSettings",
            .classId = "EFFECT_DETAILS_EX",
            .inputType = InputType::One,
            .place = Place{35},
            .fields = {Float64("strength", 0.0)},
            .isRecordEmpty = true,
        },
        {
            .className = "EdgeDetectSettings",
            .classId = "EFFECT_EDGE_DETECT",
            .inputType = InputType::One,
            .place = Place{41},
            .fields =
                {
                    Enum("mode", "None", {{"None", 0}, {"Wires", 1}, {"Colormix", 2}}, 0,
                         &NumberIn<EdgeDetectSettings, &SettingsEffectEdgeDetect::GetMode>),
                    Float64("lowThreshold", 0.0),
                    Float64("highThreshold", 0.0),
                },
            .isRecordEmpty = true,
        },
        {
            .className = "EmbossSettings",
            .classId = "EFFECT_EMBOSS",
            .inputType = InputType::One,
            .place = Place{42},
            .fields = {Int32("x", 0), Int32("y", 0), Bool("colored", false)},
            .isRecordEmpty = true,
        },
        {
            .className = "GuidedFilterSettings",
            .classId = "EFFECT_GUIDED_FILTER",
            .inputType = InputType::One,
            .place = Place::None,
            .fields = {Int32("radius", 10), Int32("depth", -1), Float64("eps", 1e-05)},
        },
        {
            .className = "NoiseVideoSettings",
            .classId = "EFFECT_NOISE_VIDEO",
            .inputType = InputType::One,
            .place = Place{65},
            .fields = NoiseFields(&NumberIn<NoiseVideoSettings, &SettingsEffectNoiseVideo::GetMethod>),
            .isRecordEmpty = true,
        },
        {
            .className = "SharpenSettings",
            .classId = "EFFECT_SHARPEN",
            .inputType = InputType::One,
            .place = Place{79},
            .fields = {Float64("level", 0.0)},
            .isRecordEmpty = true,
        },
    };
}

} // namespace Catalogue
