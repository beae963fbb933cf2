#include "Proc/EffectSettings/NoiseVideoSettings.h"
#include "catalogue/Catalogue.h"

using InputType = Ombrel::PhotoCore::IEffectSettings::InputType;
using Ombrel::PhotoCore::NoiseVideoSettings;
using Ombrel::Proc::SettingsEffectNoiseVideo;

namespace Catalogue
{

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

std::vector<Effect> DenoiseRows()
{
    return {
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
    };
}

} // namespace Catalogue
