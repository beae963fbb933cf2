#include "ToolRunner.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

namespace Ombrel
{
namespace
{

using testing::HasSubstr;

class ToolReference : public ToolTest
{
protected:
    ToolReference() { std::filesystem::copy(OMBREL_REFERENCE_NOTES, At("notes")); }

    ToolResult WritePages() const { return Run({"reference", "--notes", "notes", "--output", "pages/new"}); }

    void Replace(const std::string& file, const std::string& from, const std::string& to) const
    {
        std::string text = Content(file);
        const std::size_t place = text.find(from);
        ASSERT_NE(place, std::string::npos) << from;
        Write(file, text.replace(place, from.size(), to));
    }
};

TEST_F(ToolReference, WritesThePagesAndPrintsNothing)
{
    EXPECT_EQ(WritePages(), (ToolResult{0, "", ""}));
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(At("pages/new")))
    {
        names.push_back(entry.path().filename());
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
                          "`EFFECT_IMPLODE`, 1 input, registered at start-up.\n"
                          "\n"
                          "| Key | Kind | Default |\n"
                          "|---|---|---|\n"
                          "| `strength` | float64 | `0.0` |\n"
                          "| `mode` | enumeration | `\"Shrink\"` |\n"
                          "\n"
                          "- `mode`: \"Shrink\", \"Expand\"; an unknown name reads as \"Shrink\"\n"
                          "- Compares: all keys\n"
                          "- Empty: never; the record: when strength is 0, whatever mode is\n"));
}

TEST_F(ToolReference, TellsHowAClassIsMade)
{
    WritePages();
    EXPECT_THAT(Content("pages/new/neural.md"),
                HasSubstr("\n## MattingSettings\n\n`EFFECT_MATTING`, 1 input, not registered.\n\nNo keys.\n"));
    EXPECT_THAT(Content("pages/new/neural.md"), HasSubstr("\n`EFFECT_INPAINT`, 2 inputs, registered at start-up.\n"));
    EXPECT_THAT(Content("pages/new/neural.md"),
                HasSubstr("\n`EFFECT_REMOVE_BACKGROUND`, a variable number of inputs, registered at start-up.\n"));
    EXPECT_THAT(Content("pages/new/framework.md"),
                HasSubstr("\n`effectSettingsTileStub`, 1 input, registered by `RegisterFactory`.\n"));
}

TEST_F(ToolReference, TellsNestedRecordsInPlaceOrByALink)
{
    WritePages();
    // A record that stands nowhere else.
    EXPECT_THAT(Content("pages/new/geometry.md"), HasSubstr("\n| `frameInfo` | record | its own |\n"
                                                            "| `frameInfo/width` | uint32 | `0` |\n"));
    // The record of a class, here with another default than its own.
    EXPECT_THAT(Content("pages/new/colour.md"),
                HasSubstr("\n| `smartBlur` | record [SmartBlurSettings](#smartblursettings) | `{\"chromaBlur\":0,"));
    // The record of a class on another page.
    EXPECT_THAT(Content("pages/new/artistic.md"), HasSubstr("\n| `transpose` | record [TransposeSettings](geometry.md"
                                                            "#transposesettings) | its own |\n"));
    // A record of several others, in a pair.
    EXPECT_THAT(Content("pages/new/faces.md"), HasSubstr("\n| `framePoints` | pair of records [FacePoint](#facepoint) | "
                                                         "`{\"first\":{\"x\":0,\"y\":0},\"second\":{\"x\":0,\"y\":0}}` |\n"));
    EXPECT_THAT(Content("pages/new/faces.md"), HasSubstr("\n## FacePoint\n"
                                                         "\n"
                                                         "A record that several others hold.\n"
                                                         "\n"
                                                         "| Key | Kind | Default |\n"
                                                         "|---|---|---|\n"
                                                         "| `x` | int32 | `0` |\n"
                                                         "| `y` | int32 | `0` |\n"));
    // The elements of lists.
    EXPECT_THAT(Content("pages/new/framework.md"), HasSubstr("\n| `effectRows` | list of records | `[]` |\n"
                                                             "| `effectRows/*/cols` | list of lists of effects | `[]` |\n"));
}

TEST_F(ToolReference, SaysWhatUnknownNamesRead)
{
    WritePages();
    EXPECT_THAT(Content("pages/new/colour.md"),
                HasSubstr("\n- `mode`: \"Red\", \"Green\", \"Blue\", \"Alpha\"; an unknown name reads as 0, which has no name "
                          "and is written as \"\"\n"));
}

TEST_F(ToolReference, ListsAllClassesByName)
{
    WritePages();
    const std::string index = Content("pages/new/README.md");
    EXPECT_THAT(index, HasSubstr("\n|---|---|---|---|\n"
                                 "| [AcidSettings](framework.md#acidsettings) | `EFFECT_ACID` | 1 | registered at start-up |\n"
                                 "| [AdjusterSettings](colour.md#adjustersettings) | `EFFECT_ADJUSTER` | 1 | registered at "
                                 "start-up |\n"));
    EXPECT_THAT(index, testing::EndsWith("| [WhiteBalanceSettings](colour.md#whitebalancesettings) | "
                                         "`EFFECT_WHITE_BALANCE_PHOTO` | 1 | registered at start-up |\n"));
    const auto rows = static_cast<std::size_t>(std::ranges::count(index.substr(index.find("## All classes")), '\n'));
    EXPECT_EQ(rows, 4 + 97u);
}

TEST_F(ToolReference, NamesEveryFaultOfTheNotesAndWritesNothing)
{
    Replace("notes/geometry.json", "\"CropSettings\"", "\"CroppSettings\"");
    Replace("notes/faces.json", "\"EyeExtendingSettings\"", "\"ImplodeSettings\"");
    Replace("notes/framework.json", "\"compares\"", "\"compare\"");
    Write("notes/film.json", "{}");
    EXPECT_EQ(WritePages(), (ToolResult{3, "",
                                        "notes/framework.json: AcidSettings: has no text \"compares\"\n"
                                        "notes/geometry.json: CroppSettings: there is no such class\n"
                                        "notes/geometry.json: ImplodeSettings: noted in notes/faces.json too\n"
                                        "notes: CropSettings: has no note\n"
                                        "notes: EyeExtendingSettings: has no note\n"
                                        "notes/film.json: there is no page of this name\n"}));
    EXPECT_FALSE(std::filesystem::exists(At("pages")));
}

TEST_F(ToolReference, RefusesNotesOfAnotherForm)
{
    Write("notes/geometry.json", "[]");
    EXPECT_THAT(WritePages().err, HasSubstr("notes/geometry.json: found a list, expected a map from class names to notes\n"));
    Write("notes/geometry.json", "{");
    EXPECT_EQ(WritePages().code, 3);
    std::filesystem::remove(At("notes/geometry.json"));
    EXPECT_EQ(WritePages(), (ToolResult{2, "", "notes/geometry.json: cannot be read: No such file or directory\n"}));
}

TEST_F(ToolReference, SaysWhatCannotBeWritten)
{
    std::filesystem::create_directories(At("pages/new/masks.md"));
    EXPECT_EQ(WritePages(), (ToolResult{2, "", "pages/new/masks.md: cannot be written: Is a directory\n"}));
}

} // namespace
} // namespace Ombrel
