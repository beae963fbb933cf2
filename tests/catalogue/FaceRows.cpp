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

PropertyTree Point(int x, int y)
{
    return Map({{"x", x}, {"y", y}});
}

PropertyTree Contour(std::initializer_list<PropertyTree> points)
{
    return Map({{"contour", List(points)}});
}

PropertyTree Eye(const PropertyTree& contour, const PropertyTree& pupil)
{
    return Map({{"contour", contour}, {"pupil", Map({{"point", pupil}})}});
}

Field ContourField(std::string key)
{
    return Record(std::move(key), {Other("contour", Kind::List, List({}), List({Point(1, 2), Point(3, 4), Point(1, 2)}))});
}

Field ContoursField(std::string key, std::string_view first, std::string_view second)
{
    return Other(std::move(key), Kind::Record, Map({{first, Contour({})}, {second, Contour({})}}),
                 Map({{first, Contour({Point(5, 6)})}, {second, Contour({Point(7, 8), Point(9, 10)})}}));
}

// The samples of the two eyes differ from the defaults in every value, so that a nested map holds all of it.
Field EyeField(std::string key, int sample)
{
    return Other(std::move(key), Kind::Record, Eye(Contour({}), Point(-1, -1)),
                 Eye(Contour({Point(sample, 12)}), Point(sample, 14)));
}

PropertyTree DefaultEyes()
{
    return Map({{"left", Eye(Contour({}), Point(-1, -1))}, {"right", Eye(Contour({}), Point(-1, -1))}});
}

PropertyTree SampleEyes()
{
    return Map(
        {{"left", Eye(Contour({Point(11, 12)}), Point(13, 14))}, {"right", Eye(Contour({Point(15, 16)}), Point(17, 18))}});
}

std::vector<Field> FaceFields()
{
    return {
        ContourField("outline"),
        ContoursField("eyebrows", "left", "right"),
        ContoursField("nose", "vertical", "horizontal"),
        Other("eyes", Kind::Record, DefaultEyes(), SampleEyes()),
        ContoursField("mouth", "outer", "inner"),
        Other("framePoints", Kind::Record, Map({{"first", Point(0, 0)}, {"second", Point(0, 0)}}),
              Map({{"first", Point(21, 22)}, {"second", Point(23, 24)}})),
    };
}

PropertyTree SampleFace()
{
    PropertyTree face = DefaultForm(FaceFields());
    face["outline"] = Contour({Point(31, 32)});
    return face;
}

// The effect of an item is stored as an effect is, without its defaults and with its name; there may be none.
PropertyTree SampleItems()
{
    return List({
        Map({{"face", SampleFace()}, {"effect", Map({{"name", "EFFECT_VIBRANCE"}, {"strength", 3}})}}),
        Map({{"face", DefaultForm(FaceFields())}, {"effect", PropertyTree()}}),
    });
}

} // namespace

std::vector<Effect> FaceRows()
{
    return {
        {
            .className = "AutoGlareRemoveSettings",
            .classId = "EFFECT_AUTO_GLARE_REMOVE",
            .inputType = InputType::One,
            .place = Place{5},
            .fields = {Record("face", FaceFields())},
            .isRecordEmpty = true,
        },
        {
            .className = "EyeExtendingSettings",
            .classId = "EFFECT_EYE_EXTENDING",
            .inputType = InputType::One,
            .place = Place{44},
            .fields = {Record("eyes", {EyeField("left", 11), EyeField("right", 13)}), Float64("strength", 0.0)},
            .isRecordEmpty = true,
            .filledBy = Keys{},
        },
        {
            .className = "FaceDetectionSettings",
            .classId = "EFFECT_FACE_DETECTION",
            .inputType = InputType::One,
            .place = Place{45},
            .fields = {},
        },
        {
            .className = "FacePackageSettings",
            .classId = "SettingsEffectFacePackage",
            .inputType = InputType::One,
            .place = Place{46},
            .fields = {Other("currentFaceIndex", Kind::UInt64, 0, std::int64_t{5000000000}),
                       Other("facesEffects", Kind::List, List({}), SampleItems())},
            .isRecordEmpty = true,
            .filledBy = Keys{"facesEffects"},
        },
        {
            .className = "FaceThinningSettings",
            .classId = "EFFECT_FACE_THINNING",
            .inputType = InputType::One,
            .place = Place{47},
            .fields = {ContourField("faceOutline"), Float64("strength", 0.0)},
            .isRecordEmpty = true,
            .filledBy = Keys{"strength"},
        },
    };
}

} // namespace Catalogue
