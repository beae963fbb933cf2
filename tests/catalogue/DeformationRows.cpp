#include "Proc/EffectSettings/ImplodeSettings.h"
#include "Proc/EffectSettings/PixelateSettings.h"
#include "catalogue/Catalogue.h"

using InputType = Ombrel::PhotoCore::IEffectSettings::InputType;
using Ombrel::PhotoCore::IEffectSettings;
using Ombrel::PhotoCore::ImplodeSettings;
using Ombrel::PhotoCore::PixelateSettings;

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

} // namespace

std::vector<Effect> DeformationRows()
{
    return {
        {
            .className = "DirectionalAreaDeformationSettings",
            .classId = "EFFECT_DIRECTIONAL_AREA_DEFORMATION",
            .inputType = InputType::One,
            .place = Place{39},
            .fields = {Float64("strength", 0.0), Int32("fromX", 0), Int32("fromY", 0), Int32("toX", 0), Int32("toY", 0),
                       Int32("size", 0)},
            .isRecordEmpty = true,
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
            .className = "ImplodeSettings",
            .classId = "EFFECT_IMPLODE",
            .inputType = InputType::One,
            .place = Place{60},
            .fields = {Float64("strength", 0.0), Enum("mode", "Shrink", {{"Shrink", 0}, {"Expand", 1}}, 0, &ImplodeMode)},
            .isRecordEmpty = true,
        },
        {
            .className = "PixelateSettings",
            .classId = "EFFECT_PIXELATE",
            .inputType = InputType::One,
            .place = Place{67},
            .fields = {Float64("strength", 0.0), Enum("methodDownscale", "enBilinear", ScaleMethods(), 0, &MethodDownscale),
                       Enum("methodUpscale", "enPoint", ScaleMethods(), 0, &MethodUpscale)},
            .isRecordEmpty = true,
        },
    };
}

} // namespace Catalogue
