#include "Inspection/Describe.h"

#include "Proc/EffectSettings/EffectSettings.h"
#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "support/AllClasses.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// What is declared of the members without a key is what the classes do.
namespace
{

using namespace Ombrel;
using namespace Ombrel::Inspection;
using namespace Ombrel::PhotoCore;
using namespace Ombrel::Proc;

using Range = SettingsEffectGIMPHueSaturation::HueRange;

std::string TextOf(bool value)
{
    return value ? "true" : "false";
}

std::string TextOf(std::integral auto value)
{
    return std::to_string(value);
}

std::string TextOf(std::floating_point auto value)
{
    std::string text = std::to_string(value);
    text.erase(text.find_last_not_of('0') + 1);
    return text.back() == '.' ? text + "0" : text;
}

std::string TextOf(const std::string& value)
{
    return "\"" + value + "\"";
}

std::string TextOf(const std::vector<Face>& value)
{
    return value.empty() ? "empty" : "some";
}

template <class Value> constexpr const char* TYPE = "list of records Face";
template <> constexpr const char* TYPE<bool> = "bool";
template <> constexpr const char* TYPE<std::int32_t> = "int32";
template <> constexpr const char* TYPE<std::string> = "string";

struct Member
{
    std::string name;
    std::function<std::string(IEffectSettings&)> show;
    std::function<void(IEffectSettings&)> change;
    std::string type = {}; // of a data member
};

template <class Record> Record& RecordOf(IEffectSettings& effect)
{
    return dynamic_cast<Record&>(effect.GetEffectSettingsRef());
}

// A public data member.
template <class Record, class Value> Member Data(std::string name, Value Record::*member, Value changed)
{
    return {std::move(name), [member](IEffectSettings& effect) { return TextOf(RecordOf<Record>(effect).*member); },
            [member, changed](IEffectSettings& effect) { RecordOf<Record>(effect).*member = changed; }, TYPE<Value>};
}

// A member that is reached by functions of the record, or of the settings class.
template <class Class, class Get, class Set> Member By(std::string name, Get get, Set set)
{
    const auto subject = [](IEffectSettings& effect) -> Class&
    {
        if constexpr (std::derived_from<Class, IEffectSettings>)
        {
            return dynamic_cast<Class&>(effect);
        }
        else
        {
            return RecordOf<Class>(effect);
        }
    };
    return {std::move(name), [=](IEffectSettings& effect) -> std::string { return get(subject(effect)); },
            [=](IEffectSettings& effect) { set(subject(effect)); }};
}

std::vector<Member> ModelFile()
{
    return {Data("modelFile", &BaseSettingsModelFile::modelFile, 7)};
}

std::vector<Member> operator+(std::vector<Member> first, const std::vector<Member>& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

std::vector<Member> Neural()
{
    using R = BaseSettingsNeural;
    return ModelFile() + std::vector{Data("neuralOption1", &R::neuralOption1, false),
                                     Data("neuralOption2", &R::neuralOption2, false),
                                     Data("neuralOption3", &R::neuralOption3, false),
                                     Data("neuralOption4", &R::neuralOption4, true), Data("neuralMode", &R::neuralMode, 7)};
}

std::vector<Member> Processor()
{
    using R = SettingsEffectDeepNeuralProcessor;
    return Neural() + std::vector{Data("processorMode", &R::processorMode, 7), Data("processorIndex", &R::processorIndex, 7),
                                  Data("processorLimitFirst", &R::processorLimitFirst, 7),
                                  Data("processorLimitSecond", &R::processorLimitSecond, 7)};
}

template <class Get, class Set> Member OfRanges(std::string name, Get get, Set set)
{
    using R = SettingsEffectGIMPHueSaturation;
    return By<R>(
        std::move(name), [=](R& record) { return TextOf((record.*get)(Range::Red) + (record.*get)(Range::Magenta)); },
        [=](R& record) { (record.*set)(Range::Cyan, 0.5F), (record.*set)(Range::Red, 0.5F); });
}

std::vector<Member> HueSaturation()
{
    using R = SettingsEffectGIMPHueSaturation;
    return {OfRanges("SetHue, GetHue", &R::GetHue, &R::SetHue),
            OfRanges("SetLightness, GetLightness", &R::GetLightness, &R::SetLightness),
            OfRanges("SetSaturation, GetSaturation", &R::GetSaturation, &R::SetSaturation)};
}

// The amounts stand behind products, which show them at intensity 1.
std::vector<Member> RetroArtefacts()
{
    using R = SettingsEffectRetroArtefacts;
    return {By<R>(
                "m_grain", [](R& r) { return TextOf(r.GetGrain()); }, [](R& r) { r.SetGrain(7); }),
            By<R>(
                "m_scratches", [](R& r) { return TextOf(r.GetScratches()); }, [](R& r) { r.SetScratches(7); }),
            By<R>(
                "m_rollerTrack", [](R& r) { return TextOf(r.GetRollerTrack()); }, [](R& r) { r.SetRollerTrack(7); })};
}

std::vector<Member> Blender()
{
    using R = SettingsEffectColorBlender;
    return {
        By<R>(
            "SetIntensity, GetIntensity", [](R& r) { return TextOf(r.GetIntensity()); }, [](R& r) { r.SetIntensity(0.5F); }),
        By<R>(
            "SetBlendingMode, GetBlendingMode",
            [](R& r) { return r.GetBlendingMode() == R::BlendingMode::Default ? "Default" : "another"; },
            [](R& r) { r.SetBlendingMode(R::BlendingMode::KeepDstAlpha); })};
}

// The custom mode that the settings class keeps is seen by a read in the mode of frames.
std::string KeptCustomMode(ResizeSettings& resize)
{
    ResizeSettings copy = resize;
    copy.GetTypedSettings().SetCustomMode(SettingsResizer::CustomModes::Fill, {});
    PropertyTree tree;
    tree["frameInfo"]["ax"] = 1;
    tree["frameInfo"]["ay"] = 1;
    copy.Deserialize(tree);
    return copy.GetTypedSettings().GetCustomMode() == SettingsResizer::CustomModes::Stretch ? "Stretch" : "another";
}

std::vector<Member> Resize()
{
    using R = SettingsResizer;
    const auto isOf = [](bool is, const char* text) { return std::string(is ? text : "another"); };
    return {By<R>(
                "GetSizeMode", [=](R& r) { return isOf(r.GetSizeMode() == R::SizeModes::Original, "Original"); },
                [](R& r) { r.SetCustomScale(1.0); }),
            By<R>(
                "SetCustomMode, GetCustomMode",
                [=](R& r) { return isOf(r.GetCustomMode() == R::CustomModes::Stretch, "Stretch"); },
                [](R& r) { r.SetCustomMode(R::CustomModes::Fit, {}); }),
            By<R>(
                "SetCustomMode, GetFrameInfo", [=](R& r) { return isOf(r.GetFrameInfo() == Conf::FrameInfo{}, "all 0"); },
                [](R& r) {
                    r.SetCustomMode(R::CustomModes::Stretch, {1, 2, 3, 4});
                }),
            By<R>(
                "SetCustomScale, GetScaleFactor", [](R& r) { return TextOf(r.GetScaleFactor()); },
                [](R& r) { r.SetCustomScale(2.0); }),
            By<ResizeSettings>("m_customMode", &KeptCustomMode,
                               [](ResizeSettings& resize)
                               {
                                   const SettingsResizer before = resize.GetTypedSettings();
                                   resize.GetTypedSettings().SetCustomMode(R::CustomModes::Fit, {});
                                   PropertyTree tree;
                                   resize.Serialize(tree);
                                   resize.GetTypedSettings() = before;
                               })};
}

// With bits of channels, which are stored, the mask is not seen by its getter.
std::vector<Member> NegateVideo()
{
    using R = SettingsEffectNegateVideo;
    return {By<R>(
        "SetMode", [](R& r) { return r.IsEmpty() ? "0" : "another"; }, [](R& r) { r.SetMode({R::Channel{16}}); })};
}

std::vector<Member> Simple()
{
    using S = EffectSettingsSimple;
    return {By<S>(
                "SetInputType, GetInputType",
                [](S& s) { return s.GetInputType() == IEffectSettings::InputType::One ? "One" : "another"; },
                [](S& s) { s.SetInputType(IEffectSettings::InputType::Two); }),
            By<S>(
                "GetEffectSettingsRef",
                [](S& s)
                {
                    try
                    {
                        return TextOf(s.GetEffectSettingsRef().GetClassId());
                    }
                    catch (const std::logic_error&)
                    {
                        return std::string("null");
                    }
                },
                [](S& s) { s = S(IEffectSettings::InputType::One, std::make_shared<SettingsEffectVibrance>()); })};
}

std::vector<Member> Tile()
{
    using T = TileSettings;
    return {By<T>(
                "GetWidth", [](T& t) { return TextOf(t.GetWidth()); }, [](T& t) { t.SetSize(2, 1); }),
            By<T>(
                "GetHeight", [](T& t) { return TextOf(t.GetHeight()); }, [](T& t) { t.SetSize(1, 2); })};
}

std::vector<Member> FaceDetection()
{
    using R = SettingsEffectFaceDetection;
    return {Data("m_detectionMode", &R::m_detectionMode, 7), Data("m_faces", &R::m_faces, std::vector<Face>(1))};
}

std::vector<Member> FishEye()
{
    using R = SettingsEffectFishEye;
    return {By<R>(
        "m_deviationFactor", [](R& r) { return TextOf(r.GetDeviation()); }, [](R& r) { r.SetDeviation(2.0); })};
}

std::vector<Member> OilPaint()
{
    using R = SettingsEffectOilPaint;
    return {By<R>(
        "m_radius", [](R& r) { return TextOf(r.GetRadius()); }, [](R& r) { r.SetRadius(7); })};
}

std::vector<Member> AutoRetoucher()
{
    return Neural() + std::vector{Data("faces", &SettingsEffectDeepAutoRetoucher::faces, std::vector<Face>(1))};
}

std::vector<Member> Dreamscope()
{
    return {Data("modelExtension", &SettingsEffectDreamscope::modelExtension, std::string("x"))};
}

// Every class that has such members.
const std::map<std::string, std::vector<Member>>& Members()
{
    static const std::map<std::string, std::vector<Member>> members{
        {"BlendSettings", Blender()},
        {"DeepAdjusterSettings", Neural()},
        {"DeepAlignerSettings", Neural()},
        {"DeepAutoRetoucherSettings", AutoRetoucher()},
        {"DeepColorizerSettings", Neural()},
        {"DeepDenoiserSettings", Processor()},
        {"DeepEnhancerSettings", Processor()},
        {"DeepImageEnhancerSettings", Neural()},
        {"DeepLumaUpscalerSettings", Processor()},
        {"DeepRestorerSettings", Neural()},
        {"DeepSuperResolutorSettings", Neural()},
        {"DreamscopeSettings", Dreamscope()},
        {"EffectSettingsSimple", Simple()},
        {"FaceDetectionSettings", FaceDetection()},
        {"FishEyeSettings", FishEye()},
        {"GIMPHueSaturationSettings", HueSaturation()},
        {"ImageInpainterSettings", Neural()},
        {"NegateVideoSettings", NegateVideo()},
        {"OilPaintSettings", OilPaint()},
        {"ResizeSettings", Resize()},
        {"RetroArtefactsSettings", RetroArtefacts()},
        {"SegmentationSettings", ModelFile()},
        {"TileSettings", Tile()},
    };
    return members;
}

class KeylessMembers : public testing::TestWithParam<std::string_view>
{
protected:
    static std::string IdOf(std::string_view className)
    {
        return std::ranges::find(EffectClasses(), className, &EffectClass::className)->classId;
    }

    static const std::vector<Member>& Expected()
    {
        static const std::vector<Member> none;
        const auto found = Members().find(std::string(GetParam()));
        return found == Members().end() ? none : found->second;
    }

    static std::shared_ptr<IEffectSettings> Make()
    {
        return std::ranges::find(EffectClasses(), GetParam(), &EffectClass::className)->create();
    }
};

TEST_P(KeylessMembers, AreAllDeclared)
{
    std::string expected;
    std::string declared;
    for (const Member& member : Expected())
    {
        expected += member.name + "\n";
    }
    const auto description = Describe(IdOf(GetParam()));
    for (const KeylessMember& member : description->members)
    {
        declared += member.member + "\n";
    }
    EXPECT_EQ(declared, expected);
}

TEST_P(KeylessMembers, HaveTheirDefaultsAndAreComparedAsDeclared)
{
    const auto description = Describe(IdOf(GetParam()));
    for (const Member& member : Expected())
    {
        const auto declared = std::ranges::find(description->members, member.name, &KeylessMember::member);
        ASSERT_NE(declared, description->members.end()) << member.name;
        EXPECT_TRUE(member.type.empty() || member.type == declared->type) << member.name;
        const auto effect = Make();
        EXPECT_EQ(member.show(*effect), declared->defaultValue) << member.name;
        member.change(*effect);
        EXPECT_NE(member.show(*effect), declared->defaultValue) << member.name;
        if (GetParam() != "EffectSettingsSimple") // unequal to everything, for no member of it
        {
            EXPECT_EQ(*effect == *Make(), !declared->isCompared) << member.name;
        }
        else
        {
            EXPECT_FALSE(declared->isCompared) << member.name;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Classes, KeylessMembers,
                         testing::ValuesIn(
                             []
                             {
                                 std::vector<std::string_view> names;
                                 for (const EffectClass& effectClass : EffectClasses())
                                 {
                                     names.push_back(effectClass.className);
                                 }
                                 return names;
                             }()),
                         [](const auto& name) { return std::string(name.param); });

TEST(KeylessMembersOfRecords, AreThoseOfAFace)
{
    const std::vector<KeylessMember> reserved{{"m_reserved", "16 bytes", "all 0", false}};
    EXPECT_EQ(Describe("SettingsEffectFacePackage")->FindRecord("Face")->members, reserved);
    EXPECT_TRUE(Describe("SettingsEffectFacePackage")->FindRecord("FaceItem")->members.empty());
    Face face;
    EXPECT_EQ(face.m_reserved, (std::array<std::byte, 16>{}));
    face.m_reserved[15] = std::byte{1};
    EXPECT_TRUE(face == Face());
}

} // namespace
