#include "Inspection/Describe.h"
#include "PropertyTreeJson/PropertyTreeJson.h"

#include "Proc/EffectSettings/EffectSettings.h"
#include "Proc/EffectSettings/EffectSettingsExport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>

namespace
{

using namespace Ombrel;
using namespace Ombrel::Inspection;

using InputType = PhotoCore::IEffectSettings::InputType;

// A key in one line: its kind, its default and what else is so.
std::string LineOf(const FieldDescription& field)
{
    return field.key + ": " + TextOf(field.value) + " = " + WriteJson(field.defaultValue) +
           (field.isCompared ? *field.isCompared ? "" : ", not compared" : ", comparison unknown") +
           (field.isAlwaysWritten ? ", always written" : "") + (field.isComputed ? ", computed" : "") + "\n";
}

std::string LinesOf(const std::vector<FieldDescription>& fields)
{
    std::string lines;
    for (const FieldDescription& field : fields)
    {
        lines += LineOf(field);
    }
    return lines;
}

std::string LinesOf(const RecordDescription& record)
{
    return record.name + "\n" + LinesOf(record.fields);
}

constexpr const char* BASE_KEYS =
    "implName: text = \"default\", not compared\n"
    "helperSettings: HelperSettings = "
    R"({"applyMode":[],"maxHeight":4294967295,"maxWidth":4294967295,"undoSet":false}, not compared)"
    "\n";

TEST(Describe, SaysNothingOfAnUnknownId)
{
    EXPECT_FALSE(Describe("EFFECT_NOTHING"));
    EXPECT_FALSE(Describe(""));
    EXPECT_FALSE(Describe(std::string_view("EFFECT_ACID\0", 12)));
}

TEST(Describe, SaysWhatAClassIs)
{
    const auto fishEye = Describe("EFFECT_FISH_EYE");
    ASSERT_TRUE(fishEye);
    EXPECT_EQ(fishEye->classId, "EFFECT_FISH_EYE");
    EXPECT_EQ(fishEye->className, "FishEyeSettings");
    EXPECT_EQ(fishEye->inputs, InputType::One);
    EXPECT_TRUE(fishEye->isRegistered);
    EXPECT_FALSE(fishEye->isAdditive);
    EXPECT_TRUE(fishEye->hasPropertyAccess);
    EXPECT_TRUE(fishEye->areKeysKnown);
    EXPECT_EQ(LinesOf(fishEye->fields),
              BASE_KEYS + std::string("deviation: float64 = 0.0, computed\nintensity: float32 = 1.0\n"));
    EXPECT_EQ(fishEye->fields[2].access, "SetDeviation, GetDeviation");
    ASSERT_EQ(fishEye->records.size(), 1U);
    EXPECT_EQ(LinesOf(fishEye->records[0]), "HelperSettings\n"
                                            "undoSet: bool = false, not compared\n"
                                            "applyMode: set of name = [], not compared\n"
                                            "maxWidth: uint32 = 4294967295, not compared\n"
                                            "maxHeight: uint32 = 4294967295, not compared\n");

    EXPECT_EQ(Describe("EFFECT_BLEND")->inputs, InputType::Two);
    EXPECT_FALSE(Describe("EFFECT_GUIDED_FILTER")->isRegistered);
    EXPECT_TRUE(Describe("EFFECT_CROP")->isAdditive);
    EXPECT_FALSE(Describe("EFFECT_RESIZE")->hasPropertyAccess);
}

TEST(Describe, TellsTheTwoDefaultsOfARecord)
{
    const auto adjuster = Describe("EFFECT_ADJUSTER");
    const auto smartBlur = std::ranges::find(adjuster->fields, "smartBlur", &FieldDescription::key);
    ASSERT_NE(smartBlur, adjuster->fields.end());
    EXPECT_EQ(WriteJson(smartBlur->defaultValue["lumaRadius"]), "100");
    const RecordDescription* record = adjuster->FindRecord(smartBlur->value.record);
    ASSERT_TRUE(record);
    EXPECT_EQ(LineOf(record->fields[0]), "lumaRadius: int32 = 0\n");
}

TEST(Describe, ListsTheNamesOfAnEnumeration)
{
    const ValueDescription angle = Describe("EFFECT_TRANSPOSE")->fields[2].value;
    const std::vector<DescribedName> names{{"NoRotation", 0}, {"Angle_90", 1}, {"Angle_180", 2}, {"Angle_270", 3}};
    EXPECT_EQ(angle.form, ValueForm::Name);
    EXPECT_EQ(angle.names, names);
    EXPECT_EQ(angle.fallback, 0);
    EXPECT_TRUE(angle.takesNumbers);
    const ValueDescription algorithm = Describe("EFFECT_BLUR")->fields[2].value;
    EXPECT_EQ(algorithm.fallback, 1);
    EXPECT_FALSE(algorithm.takesNumbers);
}

TEST(Describe, TellsWidthAndSign)
{
    const auto package = Describe("SettingsEffectFacePackage");
    const ValueDescription& index = package->fields[2].value;
    EXPECT_EQ(TextOf(index), "uint64");
    EXPECT_EQ(index.form, ValueForm::Integer);
    EXPECT_EQ(index.bits, 64);
    EXPECT_FALSE(index.isSigned);
    const ValueDescription& faces = package->fields[3].value;
    EXPECT_EQ(TextOf(faces), "list of FaceItem");
    EXPECT_EQ(faces.element.at(0).form, ValueForm::Record);
    EXPECT_EQ(TextOf(Describe("effectSettingsTileStub")->fields[2].value), "list of effect");
}

TEST(Describe, DescribesEachRecordOnce)
{
    std::string names;
    const auto package = Describe("SettingsEffectFacePackage");
    for (const RecordDescription& record : package->records)
    {
        names += record.name + " ";
    }
    EXPECT_EQ(names, "HelperSettings FaceItem Face FaceContour Eyebrows Nose Eyes Mouth pair FacePoint Eye EyeContour "
                     "PupilPoint ");
    EXPECT_FALSE(package->FindRecord("Facet"));
}

TEST(Describe, FollowsComparisonsIntoRecords)
{
    const auto faces = Describe("SettingsEffectFacePackage");
    EXPECT_EQ(LinesOf(*faces->FindRecord("FacePoint")), "FacePoint\nx: int32 = 0\ny: int32 = 0\n");
    EXPECT_EQ(LinesOf(*faces->FindRecord("PupilPoint")), "PupilPoint\npoint: FacePoint = {\"x\":-1,\"y\":-1}\n");
    const auto background = Describe("EFFECT_REMOVE_BACKGROUND");
    EXPECT_EQ(LinesOf(background->records[1]), "BackgroundSettings\n"
                                               "bgFileName: text = \"\", not compared\n"
                                               "bgColor: colour = \"000000ff\", not compared\n");
    EXPECT_NE(LinesOf(background->fields).find("not compared, always written\n"), std::string::npos);
}

TEST(Describe, FindsWhatIsComputedInRecords)
{
    EXPECT_NE(
        LinesOf(*Describe("EFFECT_ADJUSTER")->FindRecord("SettingsEffectColorBalance")).find("hue: int32 = 0, computed\n"),
        std::string::npos);
}

// A simple effect has no keys of its own, which is known.
TEST(Describe, KnowsAClassWithoutKeys)
{
    const auto simple = Describe("effectSettingsSimple");
    ASSERT_TRUE(simple);
    EXPECT_TRUE(simple->areKeysKnown);
    EXPECT_EQ(LinesOf(simple->fields), BASE_KEYS);
    EXPECT_FALSE(simple->hasPropertyAccess);
}

} // namespace
