#include "Proc/EffectSettings/ShapeMaskSettings.h"
#include "catalogue/Catalogue.h"

using InputType = Ombrel::PhotoCore::IEffectSettings::InputType;
using Ombrel::PhotoCore::ShapeMaskSettings;

namespace Catalogue
{
namespace
{

const std::vector<EnumName> SHAPES{{"Circle", 0}, {"Ellipse", 1}, {"Square", 2}, {"Rectangle", 3}};
const std::vector<EnumName> THRESHOLD_MODES{{"None", 0}, {"Foreground", 1}, {"Background", 2}};

} // namespace

std::vector<Field> MaskFields(NumberOf shape, NumberOf thresholdMode)
{
    return {
        Enum("shape", "Circle", SHAPES, 0, std::move(shape)),
        Enum("thresholdMode", "None", THRESHOLD_MODES, 0, std::move(thresholdMode)),
        Float64("x", 0.0),
        Float64("y", 0.0),
        Float64("width", 0.0),
        Float64("height", 0.0),
        Float64("threshold", 0.0),
        Float64("rotationAngle", 0.0),
        UInt8("foreground", 255),
        UInt8("background", 0),
        Float64("foregroundTilt", 0.0),
        Float64("backgroundTilt", 0.0),
    };
}

std::vector<Effect> MaskRows()
{
    using Mask = Ombrel::Proc::SettingsEffectShapeMask;
    return {
        {
            .className = "ShapeMaskSettings",
            .classId = "EFFECT_SHAPE_MASK",
            .inputType = InputType::One,
            .place = Place{78},
            .fields =
                MaskFields(NumberIn<ShapeMaskSettings, &Mask::m_shape>, NumberIn<ShapeMaskSettings, &Mask::m_thresholdMode>),
            .isRecordEmpty = true,
        },
    };
}

} // namespace Catalogue
