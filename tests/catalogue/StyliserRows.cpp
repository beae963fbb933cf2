#include "Proc/EffectSettings/PopArtSettings.h"
#include "catalogue/Catalogue.h"
#include "support/CompositeOperators.h"

using InputType = Ombrel::PhotoCore::IEffectSettings::InputType;
using Ombrel::PhotoCore::PopArtSettings;
using Ombrel::Proc::SettingsEffectPopArt;

namespace Catalogue
{
namespace
{

std::vector<Field> CharcoalFields()
{
    return {Int32("radius", 0), Float64("sigma", 0.5)};
}

std::vector<EnumName> CompositeOperators()
{
    std::vector<EnumName> names;
    for (const Support::OperatorName& row : Support::COMPOSITE_OPERATORS)
    {
        names.push_back({row.name, row.number});
    }
    return names;
}

// The mode differs from the default of a radial blur, so that another value has to tell it from that of a sketch.
Field Motion()
{
    Field motion = Record("motion", RadialBlurFields(), {{"mode", "Linear"}, {"strength", 0.1}, {"angle", 135.0}});
    motion.sample["x"] = 0.3;
    return motion;
}

} // namespace

std::vector<Effect> StyliserRows()
{
    return {
        {
            .className = "CharcoalSettings",
            .classId = "EFFECT_CHARCOAL",
            .inputType = InputType::One,
            .place = Place{14},
            .fields = CharcoalFields(),
            .isRecordEmpty = true,
        },
        {
            .className = "HalfToneSettings",
            .classId = "EFFECT_HALF_TONE",
            .inputType = InputType::One,
            .place = Place{58},
            .fields = {Color("backgroundColor", "ffffffff"), Color("dotColor", "000000ff"), Float64("colourSize", 0.0),
                       Float64("dotSize", 0.0), Float64("threshold", 0.0), Int32("angle", 0)},
            .isRecordEmpty = true,
        },
        {
            .className = "OilPaintSettings",
            .classId = "EFFECT_OIL_PAINT",
            .inputType = InputType::One,
            .place = Place{66},
            .fields = {Scaled(Int32("radius", 0)), Float32("intensity", 1.0f)},
            .isRecordEmpty = true,
        },
        {
            .className = "PopArtSettings",
            .classId = "EFFECT_POP_ART",
            .inputType = InputType::One,
            .place = Place{68},
            .fields =
                {
                    Float64("saturation", 0.0),
                    Float64("hue", 0.0),
                    Float64("offset", 0.0),
                    Float64("scale", 1.0),
                    Int32("levels", 0),
                    Int32("amountVertical", 1),
                    Int32("amountHorizontal", 1),
                    Bool("invertScale", false),
                    Float32("intensity", 0.0f),
                    Enum("disproportionPolicy", "Shrink", {{"Shrink", 0}, {"Expand", 1}}, 0,
                         &NumberIn<PopArtSettings, &SettingsEffectPopArt::GetDisproportionPolicy>),
                },
            .isRecordEmpty = true,
        },
        {
            .className = "SketchSettings",
            .classId = "EFFECT_SKETCH",
            .inputType = InputType::One,
            .place = Place{80},
            .fields =
                {
                    Color("color", "000000ff"),
                    Record("noise", NoiseFields(), {{"strength", 100}}),
                    Motion(),
                    Record("charcoal", CharcoalFields(), {{"radius", 3}, {"sigma", 3.0}}),
                    Record("compose", {Enum("operator", "UndefinedCompositeOp", CompositeOperators(), 0, nullptr)},
                           {{"operator", "ColorDodgeCompositeOp"}}),
                },
        },
    };
}

} // namespace Catalogue
