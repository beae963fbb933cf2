#include "Proc/EffectSettings/LightLeaksSettings.h"
#include "Proc/EffectSettings/PopArtSettings.h"
#include "Proc/EffectSettings/TextureSettings.h"
#include "Proc/EffectSettings/VignetteFilterSettings.h"
#include "catalogue/Catalogue.h"
#include "support/CompositeOperators.h"

using InputType = Ombrel::PhotoCore::IEffectSettings::InputType;
using Ombrel::PhotoCore::LightLeaksSettings;
using Ombrel::PhotoCore::PopArtSettings;
using Ombrel::PhotoCore::TextureSettings;
using Ombrel::PhotoCore::VignetteFilterSettings;
using Ombrel::Proc::SettingsEffectLightLeaks;
using Ombrel::Proc::SettingsEffectPopArt;
using Ombrel::Proc::SettingsEffectTexture;
using Ombrel::Proc::SettingsEffectVignetteFilter;

namespace Catalogue
{
namespace
{

std::vector<EnumName> LeakPresets()
{
    return {{"enPreset1", 0},   {"enPreset2", 1},   {"enPreset3", 2},   {"enPreset4", 3},
            {"enPreset5", 4},   {"enPreset6", 5},   {"enPreset7", 6},   {"enPreset8", 7},
            {"enPreset9", 8},   {"enPreset10", 9},  {"enPreset11", 10}, {"enPreset12", 11},
            {"enPreset13", 12}, {"enPreset14", 13}, {"enPreset15", 14}, {"enPreset16", 15}};
}

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

std::vector<Effect> ArtisticRows()
{
    return {
        {
            .className = "CharcoalSettings",
            .classId = "EFFECT_CHARCOAL",
            .inputType = InputType::One,
            .place = Place{14},
            .fields = CharcoalFields(),
            .isRecordEmpty = true,
            .filledBy = Keys{"radius"},
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
            .className = "LightLeaksSettings",
            .classId = "EFFECT_LIGHT_LEAKS",
            .inputType = InputType::One,
            .place = Place{63},
            .fields = {Enum("preset", "enPreset1", LeakPresets(), 0,
                            &NumberIn<LightLeaksSettings, &SettingsEffectLightLeaks::GetPreset>)},
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
            .className = "RetroArtefactsSettings",
            .classId = "EFFECT_RETRO_ARTEFACTS",
            .inputType = InputType::One,
            .place = Place{74},
            .fields = {Bool("shake", false), Bool("vignetting", false), Scaled(UInt32("grain", 0)),
                       Scaled(UInt32("scratches", 0)), Scaled(UInt32("rollerTrack", 0)), Float32("intensity", 1.0f)},
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
        {
            .className = "TextureSettings",
            .classId = "EFFECT_TEXTURE",
            .inputType = InputType::One,
            .place = Place{83},
            .fields =
                {
                    Enum("resizeMode", "Scale", {{"Scale", 0}, {"Tile", 1}}, 0,
                         &NumberIn<TextureSettings, &SettingsEffectTexture::m_resizeMode>),
                    Float64("alpha", 0.0),
                    Record("flip", {Bool("horizontal", false), Bool("vertical", false)}),
                    Record("transpose", TransposeFields()),
                    Float64("x", 0.5),
                    Float64("y", 0.5),
                    Bool("isPreview", false),
                    String("texture", ""),
                },
            .isRecordEmpty = true,
            .filledBy = Keys{},
        },
        {
            .className = "VignetteFilterSettings",
            .classId = "EFFECT_VIGNETTE_FILTER",
            .inputType = InputType::One,
            .place = Place{88},
            .fields =
                {
                    Enum("form", "enForm1",
                         {{"enForm1", 0}, {"enForm2", 1}, {"enForm3", 2}, {"enForm4", 3}, {"enForm5", 4}, {"enForm6", 5}}, 0,
                         &NumberIn<VignetteFilterSettings, &SettingsEffectVignetteFilter::GetForm>),
                    Enum("smooth", "enLin", {{"enLin", 0}, {"enCos", 1}}, 0,
                         &NumberIn<VignetteFilterSettings, &SettingsEffectVignetteFilter::GetSmooth>),
                    Enum("aspect", "enEql", {{"enEql", 0}, {"enOgn", 1}}, 0,
                         &NumberIn<VignetteFilterSettings, &SettingsEffectVignetteFilter::GetAspect>),
                    Float64("x0", 0.0),
                    Float64("y0", 0.0),
                    Float64("RInternal", 0.0),
                    Float64("RExternal", 0.0),
                    Color("color", "000000ff"),
                    Float32("intensity", 0.0f),
                },
            .isRecordEmpty = true,
        },
        {
            .className = "VignetteSettings",
            .classId = "EFFECT_VIGNETTE",
            .inputType = InputType::One,
            .place = Place{89},
            .fields = {Record("alpha", MaskFields(), {{"foreground", 0}, {"background", 255}}), Color("color", "000000ff")},
        },
    };
}

} // namespace Catalogue
