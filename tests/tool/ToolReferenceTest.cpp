#include "ReferenceFixture.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

namespace Ombrel
{
namespace
{

using testing::HasSubstr;
using testing::Not;
using ToolReference = ReferenceTest;

TEST_F(ToolReference, WritesThePagesAndPrintsNothing)
{
    EXPECT_EQ(WritePages(), (ToolResult{0, "", ""}));
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(At("pages/new")))
    {
        names.push_back(entry.path().filename().string());
    }
    EXPECT_THAT(names, testing::UnorderedElementsAre("README.md", "artistic.md", "blur-and-detail.md", "colour.md", "faces.md",
                                                     "framework.md", "geometry.md", "masks.md", "neural.md"));
}

TEST_F(ToolReference, TellsAClassWithItsKeysItsNamesAndItsNotes)
{
    WritePages();
    EXPECT_THAT(Content("pages/new/geometry.md"),
                HasSubstr("\n## ImplodeSettings\n"
                          "\n"
                          "`EFFECT_IMPLODE`, 1 input, registered at start-up, with property access.\n"
                          "\n"
                          "`#include \"Proc/EffectSettings/ImplodeSettings.h\"`\n"
                          "\n"
                          "| Key | Kind | Default | C++ |\n"
                          "|---|---|---|---|\n"
                          "| `strength` | float64 | `0.0` | "));
    EXPECT_THAT(Content("pages/new/geometry.md"),
                HasSubstr("|\n"
                          "\n"
                          "- `mode`: \"Shrink\", \"Expand\"; an unknown name reads as \"Shrink\"\n"
                          "- Compares: all keys\n"
                          "- Empty: never; the record: when strength is 0, whatever mode is\n"
                          "\n"
                          "```json\n"
                          "{\"mode\": \"Expand\", \"name\": \"EFFECT_IMPLODE\", \"strength\": 0.75}\n"
                          "```\n"));
}

TEST_F(ToolReference, TellsHowAClassIsMade)
{
    WritePages();
    const std::string neural = Content("pages/new/neural.md");
    EXPECT_THAT(neural, HasSubstr("\n`EFFECT_MATTING`, 1 input, not registered, with a property access that lists nothing.\n"));
    EXPECT_THAT(neural, HasSubstr("\n`#include \"Proc/EffectSettings/MattingSettings.h\"`\n\nNo keys.\n"));
    EXPECT_THAT(neural, HasSubstr("\n`EFFECT_INPAINT`, 2 inputs, registered at start-up, with property access.\n"));
    EXPECT_THAT(neural, HasSubstr("\n`EFFECT_REMOVE_BACKGROUND`, a variable number of inputs, registered at start-up, with "
                                  "property access.\n"));
    EXPECT_THAT(Content("pages/new/framework.md"),
                HasSubstr("\n`effectSettingsTileStub`, 1 input, registered by `RegisterFactory`, without property access.\n"));
}

TEST_F(ToolReference, IncludesHeadersThatExist)
{
    WritePages();
    const std::string before = "\n`#include \"";
    std::size_t count = 0;
    for (const char* page : {"artistic", "blur-and-detail", "colour", "faces", "framework", "geometry", "masks", "neural"})
    {
        const std::string text = Content("pages/new/" + std::string(page) + ".md");
        for (std::size_t at = text.find(before); at != std::string::npos; at = text.find(before, at + 1))
        {
            const std::size_t begin = at + before.size();
            const std::string header = text.substr(begin, text.find('"', begin) - begin);
            EXPECT_TRUE(std::filesystem::exists(std::filesystem::path(OMBREL_SOURCES) / header)) << header;
            ++count;
        }
    }
    EXPECT_EQ(count, ClassCount());
}

TEST_F(ToolReference, HasAnAnchorForEachClassId)
{
    WritePages();
    EXPECT_THAT(Content("pages/new/colour.md"), HasSubstr("\n\n<a name=\"effect_adjuster\"></a>\n\n## AdjusterSettings\n"));
    EXPECT_THAT(Content("pages/new/faces.md"),
                HasSubstr("<a name=\"settingseffectfacepackage\"></a>\n\n## FacePackageSettings\n"));
    // The heading has this anchor already.
    EXPECT_THAT(Content("pages/new/framework.md"), Not(HasSubstr("<a name=\"effectsettingssimple\">")));
    const std::string index = Content("pages/new/README.md");
    const std::string before = "`](";
    std::size_t count = 0;
    for (std::size_t at = index.find(before); at != std::string::npos; at = index.find(before, at + 1))
    {
        const std::size_t begin = at + before.size();
        const std::string link = index.substr(begin, index.find(')', begin) - begin);
        const std::string anchor = link.substr(link.find('#') + 1);
        std::string page = Content("pages/new/" + link.substr(0, link.find('#')));
        std::ranges::transform(page, page.begin(), [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
        const bool isHeading = page.find("\n## " + anchor + "\n") != std::string::npos;
        const bool isNamed = page.find("\n<a name=\"" + anchor + "\"></a>\n") != std::string::npos;
        EXPECT_NE(isHeading, isNamed) << link;
        ++count;
    }
    EXPECT_EQ(count, ClassCount());
}

TEST_F(ToolReference, ShowsTheStoredExampleOfAClassOrElseItsDefault)
{
    Write("examples/EFFECT_VIBRANCE.json", R"({"name":"EFFECT_VIBRANCE","strength":-7.0})");
    WritePages();
    EXPECT_THAT(Content("pages/new/colour.md"), HasSubstr("```json\n{\"name\": \"EFFECT_VIBRANCE\", \"strength\": -7}\n```\n"));
    EXPECT_THAT(Content("pages/new/geometry.md"), HasSubstr("```json\n"
                                                            "{\n"
                                                            "  \"frameInfo\": {\"ax\": 16, \"ay\": 9, \"height\": 1080, "
                                                            "\"width\": 1920},\n"
                                                            "  \"name\": \"EFFECT_RESIZE\",\n"
                                                            "  \"resolution\": 299.5,\n"
                                                            "  \"scaleFactor\": 0.5,\n"
                                                            "  \"uom\": \"inches\"\n"
                                                            "}\n"
                                                            "```\n"));
    EXPECT_THAT(
        Content("pages/new/blur-and-detail.md"),
        HasSubstr("```json\n{\"depth\": -1, \"eps\": 1e-05, \"name\": \"EFFECT_GUIDED_FILTER\", \"radius\": 10}\n```\n"));
}

TEST_F(ToolReference, TellsMembersWithoutAKey)
{
    WritePages();
    const std::string head = "\nMembers without a key:\n\n"
                             "| Member | Type | Default | Compared | Copied |\n|---|---|---|---|---|\n";
    const std::string base = "| `modelFile` | int32 | 0 | yes | yes |\n"
                             "| `neuralOption1` | bool | true | yes | yes |\n"
                             "| `neuralOption2` | bool | true | yes | yes |\n"
                             "| `neuralOption3` | bool | true | yes | yes |\n"
                             "| `neuralOption4` | bool | false | yes | yes |\n";
    const std::string neural = Content("pages/new/neural.md");
    EXPECT_THAT(neural, HasSubstr(head + base +
                                  "| `neuralMode` | int32 | 0 | yes | yes |\n"
                                  "| `faces` | list of records [Face](faces.md#face) | empty | no | yes |\n"));
    // The record starts with another mode than its base, which is shown once.
    EXPECT_THAT(neural, HasSubstr(head + base + "| `neuralMode` | int32 | 1 | yes | yes |\n\n- Compares: "));
    // A record without a class.
    EXPECT_THAT(Content("pages/new/faces.md"), HasSubstr(head + "| `m_reserved` | 16 bytes | all 0 | no | yes |\n"));
}

TEST_F(ToolReference, TellsNestedRecordsInPlaceOrByALink)
{
    WritePages();
    // A record that stands nowhere else.
    EXPECT_THAT(Content("pages/new/geometry.md"), HasSubstr("\n| `frameInfo` | record | its own | "));
    EXPECT_THAT(Content("pages/new/geometry.md"), HasSubstr("\n| `frameInfo/width` | uint32 | `0` | "));
    // The record of a class, here with another default than its own.
    EXPECT_THAT(Content("pages/new/colour.md"),
                HasSubstr("\n| `smartBlur` | record [SmartBlurSettings](#smartblursettings) | `{\"chromaBlur\":0,"));
    // The record of a class on another page.
    EXPECT_THAT(Content("pages/new/artistic.md"), HasSubstr("\n| `transpose` | record [TransposeSettings](geometry.md"
                                                            "#transposesettings) | its own | "));
    // A record of several others, in a pair.
    EXPECT_THAT(Content("pages/new/faces.md"), HasSubstr("\n| `framePoints` | pair of records [FacePoint](#facepoint) | "
                                                         "`{\"first\":{\"x\":0,\"y\":0},\"second\":{\"x\":0,\"y\":0}}` | "));
    EXPECT_THAT(Content("pages/new/faces.md"), HasSubstr("\n## FacePoint\n"
                                                         "\n"
                                                         "A record that several others contain.\n"
                                                         "\n"
                                                         "| Key | Kind | Default | C++ |\n"
                                                         "|---|---|---|---|\n"
                                                         "| `x` | int32 | `0` | "));
    // The elements of lists.
    EXPECT_THAT(Content("pages/new/framework.md"), HasSubstr("\n| `effectRows` | list of records | `[]` | "));
    EXPECT_THAT(Content("pages/new/framework.md"), HasSubstr("\n| `effectRows/*/cols` | list of lists of effects | `[]` | "));
}

TEST_F(ToolReference, SaysWhatUnknownNamesDo)
{
    WritePages();
    EXPECT_THAT(Content("pages/new/neural.md"),
                HasSubstr("\n- `algorithm`: \"Auto\", \"GrabCut\", \"GridGraph\", \"Watershed\"; an unknown name reads as "
                          "\"Auto\"\n"));
    EXPECT_THAT(Content("pages/new/colour.md"),
                HasSubstr("\n- `mode`: \"Red\", \"Green\", \"Blue\", \"Alpha\"; an unknown name adds no channel"));
}

// What the library does: the text above is a note.
TEST_F(ToolReference, AnUnknownChannelIsDropped)
{
    EXPECT_EQ(RunOn(R"({"name":"EFFECT_NEGATE_VIDEO","mode":["Cyan"]})", {"normalise", "--force"}).out,
              "{\n  \"name\": \"EFFECT_NEGATE_VIDEO\"\n}\n");
}

TEST_F(ToolReference, TellsThatASegmentationComparesItsModelFile)
{
    WritePages();
    EXPECT_THAT(Content("pages/new/neural.md"),
                HasSubstr("\n- Compares: all keys except demoMode and demoColor, and also modelFile, which has no key\n"));
}

TEST_F(ToolReference, ListsAllClassesByName)
{
    WritePages();
    const std::string index = Content("pages/new/README.md");
    EXPECT_THAT(index,
                HasSubstr("\n|---|---|---|---|\n"
                          "| [AcidSettings](framework.md#acidsettings) | [`EFFECT_ACID`](framework.md#effect_acid) | 1 | "
                          "registered at start-up |\n"
                          "| [AdjusterSettings](colour.md#adjustersettings) | "
                          "[`EFFECT_ADJUSTER`](colour.md#effect_adjuster) | 1 | registered at start-up |\n"));
    std::istringstream table(index.substr(index.find("\n| [") + 1));
    std::vector<std::string> rows;
    for (std::string row; std::getline(table, row);)
    {
        rows.push_back(row);
    }
    EXPECT_TRUE(std::ranges::is_sorted(rows));
    EXPECT_EQ(rows.size(), ClassCount());
}

TEST_F(ToolReference, SaysWhatCannotBeWritten)
{
    std::filesystem::create_directories(At("pages/new/masks.md"));
    EXPECT_EQ(WritePages(), (ToolResult{3, "", "pages/new/masks.md: cannot be written: Is a directory\n"}));
}

} // namespace
} // namespace Ombrel
