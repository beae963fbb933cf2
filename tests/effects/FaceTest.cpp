#include "Proc/Settings/Face.h"

#include "Proc/EffectSettings/AutoGlareRemoveSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace
{

using namespace Ombrel::Proc;
using Ombrel::PropertyTree;
using Ombrel::PhotoCore::AutoGlareRemoveSettings;
using Support::List;
using Support::Map;

static_assert(!std::is_polymorphic_v<Face>);
static_assert(!std::is_convertible_v<Face*, Settings*>);
static_assert(!std::is_same_v<FaceContour, EyeContour>);
static_assert(!std::is_convertible_v<FaceContour, EyeContour> && !std::is_convertible_v<EyeContour, FaceContour>);
static_assert(std::is_same_v<FramePoints, std::pair<FacePoint, FacePoint>>);

// A face on its way through an effect that holds one.
AutoGlareRemoveSettings EffectWith(const Face& face)
{
    AutoGlareRemoveSettings effect;
    effect.GetTypedSettings().m_face = face;
    return effect;
}

Face FaceFrom(const PropertyTree& tree)
{
    return Support::Restored<AutoGlareRemoveSettings>(Map({{"face", tree}})).GetTypedSettings().m_face;
}

PropertyTree FormOf(const Face& face)
{
    return Support::StoredForm(EffectWith(face));
}

// A map that holds one key, which holds a map that holds the next, down to `leaf`.
PropertyTree Under(const std::vector<std::string_view>& path, PropertyTree leaf)
{
    for (auto key = path.rbegin(); key != path.rend(); ++key)
    {
        leaf = Map({{*key, leaf}});
    }
    return leaf;
}

PropertyTree Point(int x, int y)
{
    return Map({{"x", x}, {"y", y}});
}

struct Change
{
    std::string name;
    void (*apply)(Face&);
    std::vector<std::string_view> path;
    PropertyTree stored;
};

std::vector<Change> ContourChanges()
{
    static constexpr FacePoint POINT{3, 4};
    const PropertyTree stored = List({Point(3, 4)});
    return {
        {"outline", [](Face& f) { f.m_outline.m_contour = {POINT}; }, {"outline", "contour"}, stored},
        {"left eyebrow", [](Face& f) { f.m_eyebrows.m_left.m_contour = {POINT}; }, {"eyebrows", "left", "contour"}, stored},
        {"right eyebrow", [](Face& f) { f.m_eyebrows.m_right.m_contour = {POINT}; }, {"eyebrows", "right", "contour"}, stored},
        {"vertical", [](Face& f) { f.m_nose.m_vertical.m_contour = {POINT}; }, {"nose", "vertical", "contour"}, stored},
        {"horizontal", [](Face& f) { f.m_nose.m_horizontal.m_contour = {POINT}; }, {"nose", "horizontal", "contour"}, stored},
        {"left eye",
         [](Face& f) { f.m_eyes.m_left.m_contour.m_contour = {POINT}; },
         {"eyes", "left", "contour", "contour"},
         stored},
        {"right eye",
         [](Face& f) { f.m_eyes.m_right.m_contour.m_contour = {POINT}; },
         {"eyes", "right", "contour", "contour"},
         stored},
        {"outer lip", [](Face& f) { f.m_mouth.m_outer.m_contour = {POINT}; }, {"mouth", "outer", "contour"}, stored},
        {"inner lip", [](Face& f) { f.m_mouth.m_inner.m_contour = {POINT}; }, {"mouth", "inner", "contour"}, stored},
    };
}

std::vector<Change> PointChanges()
{
    return {
        {"left pupil",
         [](Face& f) { f.m_eyes.m_left.m_pupil.m_point.m_x = 3; },
         {"eyes", "left", "pupil", "point"},
         Point(3, -1)},
        {"right pupil",
         [](Face& f) { f.m_eyes.m_right.m_pupil.m_point.m_y = 4; },
         {"eyes", "right", "pupil", "point"},
         Point(-1, 4)},
        {"first, x", [](Face& f) { f.m_framePoints.first.m_x = 3; }, {"framePoints", "first"}, Map({{"x", 3}})},
        {"first, y", [](Face& f) { f.m_framePoints.first.m_y = 4; }, {"framePoints", "first"}, Map({{"y", 4}})},
        {"second, x", [](Face& f) { f.m_framePoints.second.m_x = 3; }, {"framePoints", "second"}, Map({{"x", 3}})},
        {"second, y", [](Face& f) { f.m_framePoints.second.m_y = 4; }, {"framePoints", "second"}, Map({{"y", 4}})},
    };
}

void ExpectStoredAndCompared(const std::vector<Change>& changes)
{
    for (const Change& change : changes)
    {
        Face face;
        change.apply(face);
        EXPECT_FALSE(face.IsEmpty()) << change.name;
        EXPECT_FALSE(face == Face()) << change.name;
        EXPECT_FALSE(Face() == face) << change.name;

        const PropertyTree stored = Under(change.path, change.stored);
        EXPECT_EQ(FormOf(face), Map({{"face", stored}})) << change.name;
        EXPECT_TRUE(FaceFrom(stored) == face) << change.name;
    }
}

TEST(Face, EveryContourIsStoredAndComparedAtItsPlace)
{
    ExpectStoredAndCompared(ContourChanges());
}

TEST(Face, EveryPointIsStoredAndComparedAtItsPlace)
{
    ExpectStoredAndCompared(PointChanges());
}

TEST(Face, IsEmptyByDefaultWithPupilsOutsideTheImage)
{
    const Face face;
    EXPECT_TRUE(face.IsEmpty());
    EXPECT_TRUE(face == Face());
    EXPECT_EQ(face.m_eyes.m_left.m_pupil.m_point, (FacePoint{-1, -1}));
    EXPECT_EQ(face.m_eyes.m_right.m_pupil.m_point, (FacePoint{-1, -1}));
    EXPECT_EQ(face.m_framePoints.first, (FacePoint{0, 0}));
    EXPECT_EQ(face.m_framePoints.second, (FacePoint{0, 0}));
    EXPECT_TRUE(face.m_outline.m_contour.empty());
    EXPECT_EQ(FormOf(face), Map({}));
}

TEST(Face, KeepsSixteenUnstoredBytesBehindTheFrame)
{
    Face face;
    const auto* frame = reinterpret_cast<const std::byte*>(&face.m_framePoints);
    EXPECT_EQ(face.m_reserved.data(), frame + sizeof(face.m_framePoints));
    EXPECT_EQ(face.m_reserved.size(), 16u);
    for (const std::byte value : face.m_reserved)
    {
        EXPECT_EQ(value, std::byte{0});
    }

    face.m_reserved.front() = std::byte{7};
    face.m_reserved.back() = std::byte{9};
    const Face copy(face);
    Face assigned;
    assigned = face;
    for (const Face* other : {&copy, &std::as_const(assigned)})
    {
        EXPECT_EQ(other->m_reserved.front(), std::byte{7});
        EXPECT_EQ(other->m_reserved.back(), std::byte{9});
    }
    EXPECT_TRUE(face == Face());
    EXPECT_TRUE(face.IsEmpty());
    EXPECT_EQ(FormOf(face), Map({}));
}

// A point that is missing in a pupil and a coordinate that is missing in its point have defaults of their own.
TEST(Face, APupilHasTwoLevelsOfDefault)
{
    const std::pair<PropertyTree, FacePoint> cases[] = {
        {Map({}), {-1, -1}},
        {Under({"eyes"}, Map({})), {-1, -1}},
        {Under({"eyes", "left"}, Map({})), {-1, -1}},
        {Under({"eyes", "left", "pupil"}, Map({})), {-1, -1}},
        {Under({"eyes", "left", "pupil", "point"}, Map({})), {0, 0}},
        {Under({"eyes", "left", "pupil", "point"}, Map({{"x", 5}})), {5, 0}},
        {Under({"eyes", "left", "pupil", "point"}, Map({{"y", 5}})), {0, 5}},
    };
    for (const auto& [tree, expected] : cases)
    {
        Face face;
        face.m_eyes.m_left.m_pupil.m_point = {8, 9};
        AutoGlareRemoveSettings effect = EffectWith(face);
        effect.Deserialize(Map({{"face", tree}}));
        const FacePoint& point = effect.GetTypedSettings().m_face.m_eyes.m_left.m_pupil.m_point;
        EXPECT_EQ(point.m_x, expected.m_x) << testing::PrintToString(tree);
        EXPECT_EQ(point.m_y, expected.m_y) << testing::PrintToString(tree);
    }
}

TEST(Face, APupilIsWrittenUnlessItIsOutsideTheImage)
{
    const std::pair<FacePoint, PropertyTree> cases[] = {
        {{0, 0}, Map({})},
        {{-1, 0}, Map({{"x", -1}})},
        {{0, -1}, Map({{"y", -1}})},
        {{6, 7}, Point(6, 7)},
    };
    for (const auto& [point, stored] : cases)
    {
        Face face;
        face.m_eyes.m_right.m_pupil.m_point = point;
        EXPECT_EQ(FormOf(face), Under({"face", "eyes", "right", "pupil", "point"}, stored)) << point.m_x << ", " << point.m_y;
        EXPECT_TRUE(FaceFrom(Under({"eyes", "right", "pupil", "point"}, stored)) == face) << point.m_x << ", " << point.m_y;
    }

    Face outside;
    outside.m_eyes.m_left.m_pupil.m_point = {-1, -1};
    outside.m_outline.m_contour = {FacePoint{3, 4}};
    EXPECT_EQ(FormOf(outside), Under({"face", "outline", "contour"}, List({Point(3, 4)})));
}

TEST(Face, AContourThatIsNoListStays)
{
    for (const PropertyTree& tree : {PropertyTree(5), PropertyTree("text"), PropertyTree(), Map({{"x", 1}})})
    {
        Face face;
        face.m_mouth.m_inner.m_contour = {FacePoint{3, 4}};
        AutoGlareRemoveSettings effect = EffectWith(face);
        effect.Deserialize(Under({"face", "mouth", "inner", "contour"}, tree));
        EXPECT_TRUE(effect.GetTypedSettings().m_face == face) << testing::PrintToString(tree);
    }
}

TEST(Face, AnEmptyListClearsAContour)
{
    Face face;
    face.m_mouth.m_inner.m_contour = {FacePoint{3, 4}};
    face.m_eyes.m_left.m_contour.m_contour = {FacePoint{3, 4}};
    AutoGlareRemoveSettings effect = EffectWith(face);
    const auto access = effect.GetPropertyAccess();
    access->SetProperty("face", Under({"mouth", "inner", "contour"}, List({})));
    EXPECT_TRUE(effect.GetTypedSettings().m_face.m_mouth.m_inner.m_contour.empty());
    EXPECT_EQ(effect.GetTypedSettings().m_face.m_eyes.m_left.m_contour.m_contour.size(), 1u);
    access->SetProperty("face", Under({"eyes", "left", "contour", "contour"}, List({})));
    EXPECT_TRUE(effect.GetTypedSettings().m_face.IsEmpty());
}

TEST(Face, AContourKeepsOrderAndDuplicates)
{
    const PropertyTree points = List({Point(9, 1), Point(2, 2), Point(9, 1), Point(-5, 7), Point(-5, 7)});
    const Face face = FaceFrom(Under({"outline", "contour"}, points));
    const std::vector<FacePoint> expected{{9, 1}, {2, 2}, {9, 1}, {-5, 7}, {-5, 7}};
    EXPECT_TRUE(face.m_outline.m_contour == expected);
    EXPECT_EQ(FormOf(face), Under({"face", "outline", "contour"}, points));
}

TEST(Face, ContoursCompareExactly)
{
    const FaceContour contour{{{1, 2}, {3, 4}}};
    EXPECT_TRUE(contour == (FaceContour{{{1, 2}, {3, 4}}}));
    EXPECT_FALSE(contour == (FaceContour{{{1, 2}}}));
    EXPECT_FALSE(contour == (FaceContour{{{1, 2}, {3, 4}, {3, 4}}}));
    EXPECT_FALSE(contour == (FaceContour{{{3, 4}, {1, 2}}}));
    EXPECT_FALSE(contour == (FaceContour{{{1, 2}, {3, 5}}}));
    EXPECT_FALSE(contour == (FaceContour{{{1, 2}, {0, 4}}}));
}

// No point is left out of a list, however little of it has to be told.
TEST(Face, ACoordinateOfZeroIsLeftOutOfItsPoint)
{
    Face face;
    face.m_outline.m_contour = {FacePoint{0, 0}, FacePoint{0, 4}, FacePoint{3, 0}};
    const PropertyTree points = List({Map({}), Map({{"y", 4}}), Map({{"x", 3}})});
    EXPECT_EQ(FormOf(face), Under({"face", "outline", "contour"}, points));
    EXPECT_TRUE(FaceFrom(Under({"outline", "contour"}, points)) == face);

    AutoGlareRemoveSettings effect;
    effect.GetPropertyAccess()->SetProperty("face", Under({"outline", "contour"}, points));
    EXPECT_TRUE(effect.GetTypedSettings().m_face == face);
}

TEST(Face, APointThatIsNoMapEndsTheRead)
{
    AutoGlareRemoveSettings effect;
    const PropertyTree points = List({Point(1, 2), 5, Point(3, 4)});
    EXPECT_THROW(effect.Deserialize(Under({"face", "outline", "contour"}, points)), std::invalid_argument);
    EXPECT_TRUE(effect.GetTypedSettings().m_face.m_outline == (FaceContour{{{1, 2}}}));
}

TEST(Face, EveryRecordInItMustBeAMap)
{
    const std::vector<std::string_view> paths[] = {
        {},
        {"outline"},
        {"eyebrows"},
        {"eyebrows", "left"},
        {"eyebrows", "right"},
        {"nose"},
        {"nose", "vertical"},
        {"nose", "horizontal"},
        {"eyes"},
        {"eyes", "left"},
        {"mouth"},
        {"mouth", "outer"},
        {"mouth", "inner"},
        {"eyes", "left", "contour"},
        {"eyes", "left", "pupil"},
        {"framePoints"},
        {"framePoints", "first"},
        {"eyes", "left", "pupil", "point"},
        {"framePoints", "second"},
    };
    for (const auto& path : paths)
    {
        for (const PropertyTree& tree : {PropertyTree(), PropertyTree(5), List({})})
        {
            EXPECT_THROW(FaceFrom(Under(path, tree)), std::invalid_argument) << testing::PrintToString(Under(path, tree));
        }
    }
}

// A key with a bad value ends the read: what stands before it is read, the rest is as it was.
void ExpectReadInOrder(std::vector<std::string_view> path, const std::vector<std::pair<std::string_view, PropertyTree>>& keys,
                       const PropertyTree& bad)
{
    path.insert(path.begin(), "face");
    for (std::size_t stop = 0; stop < keys.size(); ++stop)
    {
        PropertyTree tree = Map({});
        PropertyTree read = Map({});
        for (std::size_t i = 0; i < keys.size(); ++i)
        {
            tree[keys[i].first] = i == stop ? bad : keys[i].second;
            if (i < stop)
            {
                read[keys[i].first] = keys[i].second;
            }
        }
        AutoGlareRemoveSettings effect;
        EXPECT_THROW(effect.Deserialize(Under(path, tree)), std::invalid_argument) << keys[stop].first;
        EXPECT_EQ(Support::StoredForm(effect), stop == 0 ? Map({}) : Under(path, read)) << keys[stop].first;
    }
}

TEST(Face, IsReadInOrder)
{
    const PropertyTree line = Map({{"contour", List({Point(1, 2)})}});
    const PropertyTree lines = Map({{"left", line}});
    const PropertyTree pupil = Map({{"point", Point(3, 4)}});
    ExpectReadInOrder({},
                      {{"outline", line},
                       {"eyebrows", lines},
                       {"nose", Map({{"vertical", line}})},
                       {"eyes", Map({{"left", Map({{"pupil", pupil}})}})},
                       {"mouth", Map({{"outer", line}})},
                       {"framePoints", Map({{"first", Point(5, 6)}})}},
                      5);
    ExpectReadInOrder({"eyebrows"}, {{"left", line}, {"right", line}}, 5);
    ExpectReadInOrder({"nose"}, {{"vertical", line}, {"horizontal", line}}, 5);
    ExpectReadInOrder({"mouth"}, {{"outer", line}, {"inner", line}}, 5);
    ExpectReadInOrder({"eyes"}, {{"left", Map({{"pupil", pupil}})}, {"right", Map({{"pupil", pupil}})}}, 5);
    ExpectReadInOrder({"eyes", "left"}, {{"contour", line}, {"pupil", pupil}}, 5);
    ExpectReadInOrder({"framePoints"}, {{"first", Point(1, 2)}, {"second", Point(3, 4)}}, 5);
    ExpectReadInOrder({"framePoints", "first"}, {{"x", 3}, {"y", 4}}, Map({}));
}

} // namespace
