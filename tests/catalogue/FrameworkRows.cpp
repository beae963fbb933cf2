#include "catalogue/Catalogue.h"
#include "support/TreeText.h"

using InputType = Ombrel::PhotoCore::IEffectSettings::InputType;
using Ombrel::PropertyTree;
using Support::List;
using Support::Map;

namespace Catalogue
{
namespace
{

PropertyTree Vibrance(int strength)
{
    return Map({{"name", "EFFECT_VIBRANCE"}, {"strength", strength}});
}

PropertyTree SampleRows()
{
    const PropertyTree acid = Map({{"name", "EFFECT_ACID"}, {"radius", 4}});
    return List({
        Map({{"cols", List({List({Vibrance(1), acid}), List({})})}}),
        Map({{"cols", List({List({}), List({Vibrance(2)})})}}),
    });
}

} // namespace

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
            .filledBy = Keys{"radius"},
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
        {
            .className = "EmptySettings",
            .classId = "EFFECT_EMPTY",
            .inputType = InputType::One,
            .place = Place{43},
            .fields = {NotCompared(String("value", ""))},
        },
        {
            .className = "TileSettings",
            .classId = "effectSettingsTileStub",
            .inputType = InputType::One,
            .place = Place::Factory,
            .fields = {Other("pre", Kind::EffectList, List({}), List({Vibrance(3)})),
                       Other("post", Kind::EffectList, List({}), List({Vibrance(4), Vibrance(5)})),
                       Other("effectRows", Kind::List, List({}), SampleRows())},
            .hasPropertyAccess = false,
            .isClonedWhole = false,
        },
    };
}

} // namespace Catalogue
