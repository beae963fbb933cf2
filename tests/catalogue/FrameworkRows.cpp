#include "catalogue/Catalogue.h"

using InputType = Ombrel::PhotoCore::IEffectSettings::InputType;

namespace Catalogue
{

std::vector<Effect> FrameworkRows()
{
    return {
        {
            .className = "AcidSettings",
            .classId = "EFFECT_ACID",
            .inputType = InputType::One,
            .place = Place{1},
            .fields = {Int32("radius", 0), Float64("sigma", 0.5)},
            .isRecordEmpty = true,
        },
        {
            .className = "EmptySettings",
            .classId = "EFFECT_EMPTY",
            .inputType = InputType::One,
            .place = Place{43},
            .fields = {NotCompared(String("value", ""))},
        },
        {
            .className = "EffectSettingsSimple",
            .classId = "effectSettingsSimple",
            .inputType = InputType::One,
            .place = Place{93},
            .fields = {},
            .isRecordEmpty = true,
            .hasPropertyAccess = false,
            .equalsItsCopy = false,
        },
    };
}

} // namespace Catalogue
