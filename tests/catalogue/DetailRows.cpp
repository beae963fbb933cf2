#include "Proc/EffectSettings/EdgeDetectSettings.h"
#include "catalogue/Catalogue.h"

using InputType = Ombrel::PhotoCore::IEffectSettings::InputType;
using Ombrel::PhotoCore::EdgeDetectSettings;
using Ombrel::Proc::SettingsEffectEdgeDetect;

namespace Catalogue
{

std::vector<Effect> DetailRows()
{
    return {
        {
            .className = "DetailsEnhanceExSettings",
            .classId = "EFFECT_DETAILS_EX",
            .inputType = InputType::One,
            .place = Place{35},
            .fields = {Float64("strength", 0.0)},
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
    };
}

} // namespace Catalogue
