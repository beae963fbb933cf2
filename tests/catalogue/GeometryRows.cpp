#include "Proc/EffectSettings/ImplodeSettings.h"
#include "Proc/EffectSettings/PixelateSettings.h"
#include "Proc/EffectSettings/ResizeSettings.h"
#include "Proc/EffectSettings/RotateSettings.h"
#include "Proc/EffectSettings/TransposeSettings.h"
#include "catalogue/Catalogue.h"

using InputType = Ombrel::PhotoCore::IEffectSettings::InputType;
using Ombrel::PhotoCore::IEffectSettings;
using Ombrel::PhotoCore::ImplodeSettings;
using Ombrel::PhotoCore::PixelateSettings;
using Ombrel::PhotoCore::ResizeSettings;
using Ombrel::PhotoCore::RotateSettings;
using Ombrel::PhotoCore::TransposeSettings;

namespace Catalogue
{
namespace
{

std::int32_t ImplodeMode(const IEffectSettings& effect)
{
    return static_cast<std::int32_t>(dynamic_cast<const ImplodeSettings&>(effect).GetTypedSettings().m_mode);
}

std::int32_t MethodDownscale(const IEffectSettings& effect)
{
    return static_cast<std::int32_t>(dynamic_cast<const PixelateSettings&>(effect).GetTypedSettings().m_methodDownscale);
}

std::int32_t MethodUpscale(const IEffectSettings& effect)
{
    return static_cast<std::int32_t>(dynamic_cast<const PixelateSettings&>(effect).GetTypedSettings().m_methodUpscale);
}

std::vector<EnumName> ScaleMethods()
{
    return {{"enFastBilinear", 0}, {"enBilinear", 1}, {"enBicubic", 2}, {"enX", 3},       {"enPoint", 4},  {"enArea", 5},
            {"enBicublin", 6},     {"enGauss", 7},    {"enSinc", 8},    {"enLanczos", 9}, {"enSpline", 10}};
}

std::int32_t OutputSizeMode(const IEffectSettings& effect)
{
    return static_cast<std::int32_t>(dynamic_cast<const RotateSettings&>(effect).GetTypedSettings().GetOutputSizeMode());
}

std::int32_t Angle(const IEffectSettings& effect)
{
    return static_cast<std::int32_t>(dynamic_cast<const TransposeSettings&>(effect).GetTypedSettings().GetAngle());
}

std::int32_t Unit(const IEffectSettings& effect)
{
    ResizeSettings copy = dynamic_cast<const ResizeSettings&>(effect); // its getter is not const
    return static_cast<std::int32_t>(copy.GetUOM());
}

} // namespace

std::vector<Field> TransposeFields(NumberOf angle)
{
    return {TakingNumbers(Enum("angle", "NoRotation", {{"NoRotation", 0}, {"Angle_90", 1}, {"Angle_180", 2}, {"Angle_270", 3}},
                               0, std::move(angle)))};
}

std::vector<Effect> GeometryRows()
{
    return {
        {
            .className = "CropSettings",
            .classId = "EFFECT_CROP",
            .inputType = InputType::One,
            .place = Place{23},
            .fields = {Int32("x", 0), Int32("y", 0), Int32("width", 0), Int32("height", 0)},
            .isRecordEmpty = true,
            .isAdditive = true,
        },
        {
            .className = "DirectionalAreaDeformationSettings",
            .classId = "EFFECT_DIRECTIONAL_AREA_DEFORMATION",
            .inputType = InputType::One,
            .place = Place{39},
            .fields = {Float64("strength", 0.0), Int32("fromX", 0), Int32("fromY", 0), Int32("toX", 0), Int32("toY", 0),
                       Int32("size", 0)},
            .isRecordEmpty = true,
            .filledBy = Keys{"strength"},
        },
        {
            .className = "FishEyeSettings",
            .classId = "EFFECT_FISH_EYE",
            .inputType = InputType::One,
            .place = Place{48},
            .fields = {Scaled(Float64("deviation", 0.0)), Float32("intensity", 1.0f)},
            .isRecordEmpty = true,
        },
        {
            .className = "FlipSettings",
            .classId = "EFFECT_FLIP",
            .inputType = InputType::One,
            .place = Place{49},
            .fields = {Bool("horizontal", false), Bool("vertical", false)},
            .isRecordEmpty = true,
            .isAdditive = true,
        },
        {
            .className = "ImplodeSettings",
            .classId = "EFFECT_IMPLODE",
            .inputType = InputType::One,
            .place = Place{60},
            .fields = {Float64("strength", 0.0), Enum("mode", "Shrink", {{"Shrink", 0}, {"Expand", 1}}, 0, &ImplodeMode)},
            .isRecordEmpty = true,
            .filledBy = Keys{"strength"},
        },
        {
            .className = "PixelateSettings",
            .classId = "EFFECT_PIXELATE",
            .inputType = InputType::One,
            .place = Place{67},
            .fields = {Tolerant(Float64("strength", 0.0), 1e-5),
                       Enum("methodDownscale", "enBilinear", ScaleMethods(), 0, &MethodDownscale),
                       Enum("methodUpscale", "enPoint", ScaleMethods(), 0, &MethodUpscale)},
            .isRecordEmpty = true,
            .filledBy = Keys{"strength"},
        },
        {
            .className = "ResizeSettings",
            .classId = "EFFECT_RESIZE",
            .inputType = InputType::One,
            .place = Place{73},
            .fields =
                {
                    Tolerant(Float64("resolution", -1.0), 1e-5),
                    NotCompared(Enum("uom", "pixels",
                                     {{"pixels", 0}, {"percents", 1}, {"cm", 2}, {"inches", 3}, {"mm", 4}, {"points", 5}}, 0,
                                     &Unit)),
                    NotCompared(
                        Record("frameInfo", {UInt32("width", 0), UInt32("height", 0), UInt32("ax", 0), UInt32("ay", 0)})),
                    NotCompared(Float64("scaleFactor", 1.0)),
                },
            .isRecordEmpty = true,
            .filledBy = Keys{},
            .hasPropertyAccess = false,
        },
        {
            .className = "RotateSettings",
            .classId = "EFFECT_ROTATE",
            .inputType = InputType::One,
            .place = Place{76},
            .fields =
                {
                    Enum("outputSizeMode", "enOutputSizeOriginal",
                         {{"enOutputSizeOriginal", 0},
                          {"enOutputSizeCustom", 1},
                          {"enOutputSizeCrop", 2},
                          {"enOutputSizePad", 3}},
                         0, &OutputSizeMode),
                    Float64("angle", 0.0),
                    Int32("width", 0),
                    Int32("height", 0),
                    Bool("isBilinear", false),
                    Color("color", "000000ff"),
                },
            .isRecordEmpty = true,
        },
        {
            .className = "TransposeSettings",
            .classId = "EFFECT_TRANSPOSE",
            .inputType = InputType::One,
            .place = Place{86},
            .fields = TransposeFields(&Angle),
            .isRecordEmpty = true,
            .isAdditive = true,
        },
    };
}

} // namespace Catalogue
