#include "Proc/EffectSettings/BlurRadialSettings.h"
#include "Proc/EffectSettings/BlurSettings.h"
#include "catalogue/Catalogue.h"
#include "support/TreeText.h"

using InputType = Ombrel::PhotoCore::IEffectSettings::InputType;
using Ombrel::PhotoCore::BlurRadialSettings;
using Ombrel::PhotoCore::BlurSettings;
using Ombrel::Proc::SettingsEffectBlur;
using Ombrel::Proc::SettingsEffectBlurRadial;
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

std::vector<Effect> BlurRows()
{
    return {
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
        },
        {
            .className = "BlurMotionSettings",
            .classId = "EFFECT_BLUR_MOTION",
            .inputType = InputType::One,
            .place = Place{11},
            .fields = {Int32("radius", 0), Float64("sigma", 0.0), Float64("angle", 0.0)},
            .isRecordEmpty = true,
        },
        {
            .className = "BlurRadialSettings",
            .classId = "EFFECT_BLUR_RADIAL",
            .inputType = InputType::One,
            .place = Place{12},
            .fields = RadialBlurFields(&NumberIn<BlurRadialSettings, &SettingsEffectBlurRadial::m_mode>),
            .isRecordEmpty = true,
        },
    };
}

} // namespace Catalogue
