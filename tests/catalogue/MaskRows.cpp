#include "Proc/EffectSettings/BlendSettings.h"
#include "Proc/EffectSettings/EffectsPackageWithBrushSettings.h"
#include "Proc/EffectSettings/ShapeMaskSettings.h"
#include "catalogue/Catalogue.h"
#include "support/TreeText.h"

using InputType = Ombrel::PhotoCore::IEffectSettings::InputType;
using Ombrel::PropertyTree;
using Ombrel::PhotoCore::BlendSettings;
using Ombrel::PhotoCore::EffectsPackageWithBrushSettings;
using Ombrel::PhotoCore::IEffectSettings;
using Ombrel::PhotoCore::ShapeMaskSettings;
using Support::List;
using Support::Map;

namespace Catalogue
{
namespace
{

const std::vector<EnumName> SHAPES{{"Circle", 0}, {"Ellipse", 1}, {"Square", 2}, {"Rectangle", 3}};
const std::vector<EnumName> THRESHOLD_MODES{{"None", 0}, {"Foreground", 1}, {"Background", 2}};

// The getter takes a record that may change.
std::int32_t OptimizationModeOf(const IEffectSettings& effect)
{
    auto record = dynamic_cast<const EffectsPackageWithBrushSettings&>(effect).GetTypedSettings();
    return static_cast<std::int32_t>(record.GetOptimizationMode());
}

// Effects are stored without their defaults and with their names; a null effect is a null tree.
PropertyTree SampleEffects(int strength)
{
    return List({Map({{"name", "EFFECT_VIBRANCE"}, {"strength", strength}}), PropertyTree(), Map({{"name", "EFFECT_ACID"}}),
                 Map({{"name", "EFFECT_VIBRANCE"}})});
}

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
    using Blender = Ombrel::Proc::SettingsEffectColorBlender;
    using Mask = Ombrel::Proc::SettingsEffectShapeMask;
    return {
        {
            .className = "BlendSettings",
            .classId = "EFFECT_BLEND",
            .inputType = InputType::Two,
            .place = Place::None,
            .fields =
                {
                    Int32("positionX", 0),
                    Int32("positionY", 0),
                    Within(Other("alpha", Kind::Int32, 0, 128), 0, 255),
                    Redirected(Enum("blendingMode", "Default", {{"Default", 0}, {"KeepDstAlpha", 26}}, 0,
                                    NumberIn<BlendSettings, &Blender::GetAlpha>),
                               "alpha", 26),
                },
            .isRecordEmpty = true,
        },
        {
            .className = "EffectsPackageWithBrushSettings",
            .classId = "EffectsPackageOneInputWithBrush",
            .inputType = InputType::One,
            .place = Place{91},
            .fields =
                {
                    Other("foregroundEffects", Kind::EffectList, List({}), SampleEffects(3)),
                    Other("backgroundEffects", Kind::EffectList, List({}), SampleEffects(4)),
                    Enum("optimizationMode", "ShapeSizeBased", {{"ShapeSizeBased", 0}, {"FrameSizeBased", 1}}, 0,
                         &OptimizationModeOf),
                    Record("alpha", MaskFields(), {{"foreground", 0}, {"background", 255}}),
                    Bool("useExternalMask", false),
                    Int32("blendingStrength", 0),
                    NotCompared(Bool("swapFramesIfMaskFound", false)),
                    NotCompared(UInt32("backgroundIndex", 4294967295)),
                },
            .isEmpty = true,
            .isRecordEmpty = true,
            .filledBy = Keys{"foregroundEffects", "backgroundEffects"},
        },
        {
            .className = "ShapeMaskSettings",
            .classId = "EFFECT_SHAPE_MASK",
            .inputType = InputType::One,
            .place = Place{78},
            .fields =
                MaskFields(NumberIn<ShapeMaskSettings, &Mask::m_shape>, NumberIn<ShapeMaskSettings, &Mask::m_thresholdMode>),
            .isRecordEmpty = true,
        },
        {
            .className = "TiltShiftSettings",
            .classId = "EFFECT_TILT_SHIFT",
            .inputType = InputType::One,
            .place = Place{85},
            .fields = {Record("alpha", MaskFields()), Int32("blur", 0), Int32("sharpen", 0)},
            .isRecordEmpty = true,
        },
    };
}

} // namespace Catalogue
