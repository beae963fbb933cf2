#include "Proc/Settings/Face.h"

#include "Proc/Reflection/Reflected.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

namespace
{

using namespace Ombrel::Proc;
using Ombrel::PropertyTree;
using Support::List;
using Support::Map;

TEST(FaceFold, ADefaultFaceIsAnEmptyMap)
{
    constexpr WriteFlags flags{.resetTargets = true, .omitDefaults = true};
    PropertyTree tree;
    Codec<Face>::Write(tree, Face(), &flags);
    EXPECT_EQ(tree, Map({}));
}

TEST(FaceFold, AnEmptyMapIsADefaultFace)
{
    constexpr ReadFlags flags{.resetMissing = true};
    Face face;
    face.m_nose.m_vertical.m_contour = {FacePoint{3, 4}};
    face.m_eyes.m_left.m_pupil.m_point = {5, 6};
    Codec<Face>::Read(Map({}), face, &flags);
    EXPECT_TRUE(face.IsEmpty());
    EXPECT_EQ(face.m_eyes.m_left.m_pupil.m_point, (FacePoint{-1, -1}));
}

TEST(FaceFold, EverythingIsWrittenWhereDefaultsCount)
{
    constexpr WriteFlags flags{.resetTargets = true, .omitDefaults = false};
    const PropertyTree line = Map({{"contour", List({})}});
    const PropertyTree eye = Map({{"contour", line}, {"pupil", Map({{"point", Map({{"x", -1}, {"y", -1}})}})}});
    const PropertyTree origin = Map({{"x", 0}, {"y", 0}});
    PropertyTree tree;
    Codec<Face>::Write(tree, Face(), &flags);
    EXPECT_EQ(tree, Map({
                        {"outline", line},
                        {"eyebrows", Map({{"left", line}, {"right", line}})},
                        {"nose", Map({{"vertical", line}, {"horizontal", line}})},
                        {"eyes", Map({{"left", eye}, {"right", eye}})},
                        {"mouth", Map({{"outer", line}, {"inner", line}})},
                        {"framePoints", Map({{"first", origin}, {"second", origin}})},
                    }));
}

} // namespace
