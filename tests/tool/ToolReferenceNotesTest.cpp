#include "ReferenceFixture.h"

#include <gmock/gmock.h>

#include <filesystem>

// What the tool says about notes and examples that do not fit the library.
namespace Ombrel
{
namespace
{

using testing::HasSubstr;
using ToolReferenceNotes = ReferenceTest;

TEST_F(ToolReferenceNotes, NamesEveryFaultOfTheNotesAndWritesNothing)
{
    Replace("notes/geometry.json", "\"CropSettings\"", "\"CroppSettings\"");
    Replace("notes/faces.json", "\"EyeExtendingSettings\"", "\"ImplodeSettings\"");
    Replace("notes/framework.json", "\"compares\"", "\"compare\"");
    Write("notes/film.json", "{}");
    EXPECT_EQ(WritePages(), (ToolResult{4, "",
                                        "notes/framework.json: AcidSettings: has no text \"compares\"\n"
                                        "notes/geometry.json: CroppSettings: there is no such class\n"
                                        "notes/geometry.json: ImplodeSettings: noted in notes/faces.json too\n"
                                        "notes: CropSettings: has no note\n"
                                        "notes: EyeExtendingSettings: has no note\n"
                                        "notes/film.json: there is no page of this name\n"}));
    EXPECT_FALSE(std::filesystem::exists(At("pages")));
}

TEST_F(ToolReferenceNotes, RefusesNotesOfAnotherForm)
{
    Write("notes/geometry.json", "[]");
    EXPECT_THAT(WritePages().err, HasSubstr("notes/geometry.json: found a list, expected a map from class names to notes\n"));
    Write("notes/geometry.json", "{");
    EXPECT_EQ(WritePages().code, 4);
    std::filesystem::remove(At("notes/geometry.json"));
    EXPECT_EQ(WritePages(), (ToolResult{3, "", "notes/geometry.json: cannot be read: No such file or directory\n"}));
}

TEST_F(ToolReferenceNotes, NamesEveryFaultOfTheMembers)
{
    Replace("notes/members.json", "\"SettingsEffectDreamscope\"", "\"SettingsEffectDream\"");
    Replace("notes/members.json", "\"all 0\"", "\"\"");
    Replace("notes/faces.json", "[\n            \"SettingsEffectFaceDetection\"\n        ]", "\"SettingsEffectFaceDetection\"");
    Replace("notes/colour.json", "\"mode\": \"adds", "\"mode\": \"\", \"node\": \"adds");
    EXPECT_EQ(WritePages(),
              (ToolResult{4, "",
                          "notes/members.json: Face: has no text \"default\"\n"
                          "notes/colour.json: NegateVideoSettings: \"unknownNames\": has no text \"mode\"\n"
                          "notes/neural.json: DreamscopeSettings: \"members\": \"SettingsEffectDreamscope\" is not in "
                          "notes/members.json\n"
                          "notes/faces.json: FaceDetectionSettings: \"members\": found a string, expected a list of names\n"}));
    EXPECT_FALSE(std::filesystem::exists(At("pages")));
}

TEST_F(ToolReferenceNotes, RefusesMembersThatNothingHas)
{
    Replace("notes/members.json", "\"Face\"", "\"Fase\"");
    EXPECT_EQ(WritePages(), (ToolResult{4, "", "notes: Fase: no class and no record has these members\n"}));
    EXPECT_FALSE(std::filesystem::exists(At("pages")));
}

TEST_F(ToolReferenceNotes, RefusesMembersOfAnotherForm)
{
    Write("notes/members.json", "[]");
    EXPECT_THAT(WritePages().err,
                HasSubstr("notes/members.json: found a list, expected a map from names of classes to lists of members\n"));
    Write("notes/members.json", R"({"Face":{}})");
    EXPECT_THAT(WritePages().err, HasSubstr("notes/members.json: Face: found a map, expected a list of members\n"));
}

TEST_F(ToolReferenceNotes, RefusesExamplesThatAreNone)
{
    const char* const other = R"({"name":"EFFECT_VIBRANCE"})";
    Write("examples/EFFECT_ACID.json", other);
    EXPECT_EQ(WritePages(),
              (ToolResult{4, "", "examples/EFFECT_ACID.json: expected one effect of class id \"EFFECT_ACID\"\n"}));
    Write("examples/EFFECT_ACID.json", R"({"name":"EFFECT_ACID","radius":true})");
    EXPECT_THAT(WritePages().err,
                HasSubstr("error: radius: expected an integer from -2147483648 to 2147483647, found true [wrong-kind]"));
    std::filesystem::remove(At("examples/EFFECT_ACID.json"));
    EXPECT_EQ(WritePages(), (ToolResult{3, "", "examples/EFFECT_ACID.json: cannot be read: No such file or directory\n"}));
    EXPECT_FALSE(std::filesystem::exists(At("pages")));
}

} // namespace
} // namespace Ombrel
