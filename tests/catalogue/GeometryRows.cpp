#include "Proc/EffectSettings/ResizeSettings.h"
#include "Proc/EffectSettings/RotateSettings.h"
#include "Proc/EffectSettings/TransposeSettings.h"
#include "catalogue/Catalogue.h"

using InputType = Ombrel::PhotoCore::IEffectSettings::InputType;
using Ombrel::PhotoCore::IEffectSettings;
using Ombrel::PhotoCore::ResizeSettings;
using Ombrel::PhotoCore::RotateSettings;
using Ombrel::PhotoCore::TransposeSettings;

namespace Catalogue
{
namespace
{

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
            .className = "FlipSettings",
            .classId = "EFFECT_FLIP",
            .inputType = InputType::One,
            .place = Place{49},
            .fields = {Bool("horizontal", false), Bool("vertical", false)},
            .isRecordEmpty = true,
            .isAdditive = true,
        },
        {
            .className = "ResizeSettings",
            .classId = "EFFECT_RESIZE",
            .inputType = InputType::One,
            .place = Place{73},
            .fields =
                {
                    Float64("resolution", -1.0),
                    NotCompared(Enum("uom", "pixels",
                                     {{"pixels", 0}, {"percents", 1}, {"cm", 2}, {"inches", 3}, {"mm", 4}, {"points", 5}}, 0,
                                     &Unit)),
                    NotCompared(
                        Record("frameInfo", {UInt32("width", 0), UInt32("height", 0), UInt32("ax", 0), UInt32("ay", 0)})),
                    NotCompared(Float64("scaleFactor", 1.0)),
                },
            .isRecordEmpty = true,
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
