#include "Proc/EffectSettings/AutoGlareRemoveSettings.h"
#include "Proc/EffectSettings/EyeExtendingSettings.h"
#include "Proc/EffectSettings/FaceDetectionSettings.h"
#include "Proc/EffectSettings/FaceThinningSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <memory>

namespace
{

using namespace Ombrel::PhotoCore;
using namespace Ombrel::Proc;
using Ombrel::PropertyTree;
using Support::List;
using Support::Map;
using Support::Restored;
using Support::StoredForm;

Face SomeFace()
{
    Face face;
    face.m_outline.m_contour = {FacePoint{1, 2}};
    return face;
}

// The typed comparison of the class and the untyped one of the record.
template <class Effect> bool AreEqual(const Effect& a, const Effect& b)
{
    const bool areEqual = a == b;
    EXPECT_EQ(a.GetEffectSettings().IsEqualTo(b.GetEffectSettings()), areEqual);
    EXPECT_EQ(b == a, areEqual);
    EXPECT_EQ(a != b, !areEqual);
    return areEqual;
}

TEST(FaceThinning, IsEmptyByItsStrength)
{
    FaceThinningSettings effect;
    auto& record = effect.GetTypedSettings();
    EXPECT_TRUE(effect.GetEffectSettings().IsEmpty());
    record.m_faceOutline.m_contour = {FacePoint{1, 2}};
    EXPECT_TRUE(effect.GetEffectSettings().IsEmpty());
    record.m_strength = -0.0;
    EXPECT_TRUE(effect.GetEffectSettings().IsEmpty());
    for (const double strength : {0.25, -0.25, 5e-324, std::nan("")})
    {
        record.m_strength = strength;
        EXPECT_FALSE(effect.GetEffectSettings().IsEmpty()) << strength;
    }
    record.m_faceOutline.m_contour.clear();
    record.m_strength = 0.5;
    EXPECT_FALSE(effect.GetEffectSettings().IsEmpty());
}

TEST(FaceThinning, OneKeyMakesItDoSomething)
{
    const auto effect = Restored<FaceThinningSettings>(Map({{"strength", 0.25}}));
    EXPECT_FALSE(effect.GetEffectSettings().IsEmpty());
    EXPECT_FALSE(effect.IsEmpty());
    EXPECT_EQ(StoredForm(effect), Map({{"strength", 0.25}}));
}

TEST(FaceThinning, ComparesOutlineAndStrengthExactly)
{
    FaceThinningSettings a;
    FaceThinningSettings b;
    EXPECT_TRUE(AreEqual(a, b));
    a.GetTypedSettings().m_faceOutline.m_contour = {FacePoint{1, 2}, FacePoint{3, 4}};
    EXPECT_FALSE(AreEqual(a, b));
    b.GetTypedSettings().m_faceOutline.m_contour = {FacePoint{1, 2}};
    EXPECT_FALSE(AreEqual(a, b));
    b.GetTypedSettings().m_faceOutline.m_contour.push_back({3, 4});
    EXPECT_TRUE(AreEqual(a, b));

    a.GetTypedSettings().m_strength = 0.5;
    b.GetTypedSettings().m_strength = std::nextafter(0.5, 1.0);
    EXPECT_FALSE(AreEqual(a, b));
    a.GetTypedSettings().m_strength = b.GetTypedSettings().m_strength = std::nan("");
    EXPECT_FALSE(AreEqual(a, b));
    EXPECT_FALSE(a == a); // NOLINT(misc-redundant-expression): a NaN makes an effect unlike itself
}

TEST(EyeExtending, IsEmptyUnlessBothEyesHaveAContour)
{
    EyeExtendingSettings effect;
    auto& record = effect.GetTypedSettings();
    EXPECT_TRUE(effect.GetEffectSettings().IsEmpty());
    record.m_strength = 0.5;
    record.m_eyes.m_left.m_pupil.m_point = record.m_eyes.m_right.m_pupil.m_point = {3, 4};
    EXPECT_TRUE(effect.GetEffectSettings().IsEmpty());
    record.m_eyes.m_left.m_contour.m_contour = {FacePoint{1, 2}};
    EXPECT_TRUE(effect.GetEffectSettings().IsEmpty());
    record.m_eyes.m_right.m_contour.m_contour = {FacePoint{1, 2}};
    EXPECT_FALSE(effect.GetEffectSettings().IsEmpty());
    record.m_strength = 0.0;
    EXPECT_FALSE(effect.GetEffectSettings().IsEmpty());
    record.m_eyes.m_left.m_contour.m_contour.clear();
    EXPECT_TRUE(effect.GetEffectSettings().IsEmpty());
    EXPECT_FALSE(effect.IsEmpty());
}

TEST(EyeExtending, DefaultEyesAreNotStoredAndComeBack)
{
    EyeExtendingSettings effect;
    EXPECT_EQ(StoredForm(effect), Map({}));
    effect.GetTypedSettings().m_eyes.m_left.m_pupil.m_point = {3, 4};
    effect.GetTypedSettings().m_eyes.m_right.m_pupil.m_point = {5, 6};
    effect.Deserialize(Map({}));
    EXPECT_EQ(effect.GetTypedSettings().m_eyes.m_left.m_pupil.m_point, (FacePoint{-1, -1}));
    EXPECT_EQ(effect.GetTypedSettings().m_eyes.m_right.m_pupil.m_point, (FacePoint{-1, -1}));
}

TEST(EyeExtending, ComparesBothEyesAndTheStrengthExactly)
{
    const EyeExtendingSettings plain;
    EXPECT_TRUE(AreEqual(plain, EyeExtendingSettings()));

    void (*const changes[])(SettingsEffectEyeExtending&) = {
        [](SettingsEffectEyeExtending& record) {
            record.m_eyes.m_left.m_contour.m_contour = {FacePoint{1, 2}};
        },
        [](SettingsEffectEyeExtending& record) { record.m_eyes.m_left.m_pupil.m_point.m_x = 0; },
        [](SettingsEffectEyeExtending& record) {
            record.m_eyes.m_right.m_contour.m_contour = {FacePoint{1, 2}};
        },
        [](SettingsEffectEyeExtending& record) { record.m_eyes.m_right.m_pupil.m_point.m_y = 0; },
        [](SettingsEffectEyeExtending& record) { record.m_strength = 5e-324; },
    };
    for (const auto& change : changes)
    {
        EyeExtendingSettings a;
        change(a.GetTypedSettings());
        EXPECT_FALSE(AreEqual(a, plain)) << &change - changes;
        EyeExtendingSettings b;
        change(b.GetTypedSettings());
        EXPECT_TRUE(AreEqual(a, b)) << &change - changes;
    }
    EyeExtendingSettings nan;
    nan.GetTypedSettings().m_strength = std::nan("");
    EXPECT_FALSE(nan == nan); // NOLINT(misc-redundant-expression): a NaN makes an effect unlike itself
}

TEST(AutoGlareRemove, IsEmptyByItsFace)
{
    AutoGlareRemoveSettings effect;
    EXPECT_TRUE(effect.GetEffectSettings().IsEmpty());
    EXPECT_EQ(StoredForm(effect), Map({}));
    effect.GetTypedSettings().m_face = SomeFace();
    EXPECT_FALSE(effect.GetEffectSettings().IsEmpty());
    EXPECT_FALSE(effect.IsEmpty());
    EXPECT_FALSE(AreEqual(effect, AutoGlareRemoveSettings()));
    EXPECT_EQ(StoredForm(effect), Map({{"face", Map({{"outline", Map({{"contour", List({Map({{"x", 1}, {"y", 2}})})}})}})}}));
}

TEST(AutoGlareRemove, ComparesAsFacesDo)
{
    AutoGlareRemoveSettings effect;
    effect.GetTypedSettings().m_face.m_reserved.fill(std::byte{7});
    EXPECT_TRUE(AreEqual(effect, AutoGlareRemoveSettings()));
}

TEST(FaceDetection, ComparesTheModeAlone)
{
    FaceDetectionSettings a;
    FaceDetectionSettings b;
    a.GetTypedSettings().m_faces = {SomeFace(), Face()};
    EXPECT_TRUE(AreEqual(a, b));
    b.GetTypedSettings().m_detectionMode = 1;
    EXPECT_FALSE(AreEqual(a, b));
    b.GetTypedSettings().m_faces = a.GetTypedSettings().m_faces;
    EXPECT_FALSE(AreEqual(a, b));
}

TEST(FaceDetection, IsNeverEmpty)
{
    FaceDetectionSettings effect;
    EXPECT_FALSE(effect.GetEffectSettings().IsEmpty());
    EXPECT_FALSE(effect.IsEmpty());
    effect.GetTypedSettings().m_faces = {SomeFace()};
    EXPECT_FALSE(effect.GetEffectSettings().IsEmpty());
}

TEST(FaceDetection, StoresNothing)
{
    FaceDetectionSettings effect;
    EXPECT_EQ(effect.GetTypedSettings().m_detectionMode, 0);
    EXPECT_TRUE(effect.GetTypedSettings().m_faces.empty());
    effect.GetTypedSettings().m_detectionMode = 3;
    effect.GetTypedSettings().m_faces = {SomeFace()};
    effect.HelperSetting().SetMaxWidth(640);
    EXPECT_EQ(StoredForm(effect), Map({{"helperSettings", Map({{"maxWidth", 640}})}}));

    const auto restored = Restored<FaceDetectionSettings>(StoredForm(effect));
    EXPECT_TRUE(restored.GetTypedSettings().m_faces.empty());
    EXPECT_EQ(restored.GetTypedSettings().m_detectionMode, 0);
    EXPECT_EQ(restored.GetHelperSettings().GetMaxWidth(), 640u);
}

TEST(FaceDetection, ReadingLeavesModeAndFaces)
{
    FaceDetectionSettings effect;
    effect.GetTypedSettings().m_detectionMode = 3;
    effect.GetTypedSettings().m_faces = {SomeFace()};
    effect.Deserialize(Map({{"detectionMode", 5}, {"faces", List({})}}));
    EXPECT_EQ(effect.GetTypedSettings().m_detectionMode, 3);
    ASSERT_EQ(effect.GetTypedSettings().m_faces.size(), 1u);
    EXPECT_TRUE(effect.GetTypedSettings().m_faces[0] == SomeFace());
}

TEST(FaceDetection, ItsPropertyAccessListsNothing)
{
    FaceDetectionSettings effect;
    const auto access = effect.GetPropertyAccess();
    ASSERT_TRUE(access);
    EXPECT_TRUE(access->ListProperties().empty());
    for (const char* key : {"detectionMode", "faces", ""})
    {
        EXPECT_TRUE(access->GetProperty(key).isNull()) << key;
        access->SetProperty(key, 5);
    }
    EXPECT_EQ(effect.GetTypedSettings().m_detectionMode, 0);
}

TEST(FaceDetection, CopiesCarryModeAndFaces)
{
    FaceDetectionSettings effect;
    effect.GetTypedSettings().m_detectionMode = 3;
    effect.GetTypedSettings().m_faces = {SomeFace()};

    const auto clone = effect.Clone();
    FaceDetectionSettings receiver;
    receiver.SetEffectSettings(effect.GetEffectSettings());
    const std::unique_ptr<const Settings> record(effect.GetEffectSettings().Clone());
    for (const Settings* copy : {&clone->GetEffectSettings(), &receiver.GetEffectSettings(), record.get()})
    {
        const auto& detection = dynamic_cast<const SettingsEffectFaceDetection&>(*copy);
        EXPECT_EQ(detection.m_detectionMode, 3);
        ASSERT_EQ(detection.m_faces.size(), 1u);
        EXPECT_TRUE(detection.m_faces[0] == SomeFace());
    }
}

TEST(FaceEffects, AreNotAdditive)
{
    FaceThinningSettings effect;
    FaceThinningSettings other;
    other.GetTypedSettings().m_strength = 0.5;
    effect.Add(other);
    EXPECT_FALSE(effect.IsAdditive());
    EXPECT_EQ(effect.GetTypedSettings().m_strength, 0.0);
    EXPECT_EQ(effect.GetImplName(), "default");
}

} // namespace
