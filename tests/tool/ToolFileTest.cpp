#include "InPlaceFixture.h"

#include <filesystem>
#include <thread>

namespace Ombrel
{
namespace
{

namespace fs = std::filesystem;

TEST_F(ToolInPlace, ReplacesAndPrintsNothing)
{
    EXPECT_EQ(SetRadius(), (ToolResult{0, "", ""}));
    EXPECT_EQ(Content("f.json"), NEW);
    EXPECT_EQ(Files(), std::vector<std::string>{"f.json"});
}

TEST_F(ToolInPlace, PutsAnotherFileInTheOldOnesPlace)
{
    fs::create_hard_link(At("f.json"), At("before.json"));
    EXPECT_EQ(SetRadius().code, 0);
    EXPECT_EQ(Content("f.json"), NEW);
    EXPECT_EQ(Content("before.json"), OLD) << "the old content was overwritten, so that a crash could have torn it";
}

TEST_F(ToolInPlace, PrintingLeavesTheFileAlone)
{
    EXPECT_EQ(Run({"set", "f.json", "radius", "7"}), (ToolResult{0, NEW, ""}));
    ExpectUntouched();
}

TEST_F(ToolInPlace, TwoAtOnceLoseNoChange)
{
    for (int round = 0; round < 100; ++round)
    {
        Write("f.json", OLD);
        ToolResult other{-1, {}, {}};
        std::thread second([&] { other = Run({"set", "f.json", "sigma", "2", "--in-place"}); });
        const ToolResult result = SetRadius();
        second.join();
        ASSERT_EQ(result, (ToolResult{0, "", ""}));
        ASSERT_EQ(other, (ToolResult{0, "", ""}));
        ASSERT_EQ(Content("f.json"), "{\n  \"name\": \"EFFECT_ACID\",\n  \"radius\": 7,\n  \"sigma\": 2.0\n}\n");
    }
    EXPECT_EQ(Files(), std::vector<std::string>{"f.json"});
}

TEST_F(ToolInPlace, AnErrorLeavesTheFileAlone)
{
    EXPECT_EQ(Run({"set", "f.json", "radius", "x", "--in-place"}).code, 2);
    EXPECT_EQ(Run({"set", "f.json", "radios", "1", "--in-place"}).code, 2);
    EXPECT_EQ(Run({"set", "f.json", "radius", "1.5", "--in-place"}),
              (ToolResult{1, "",
                          "f.json: radius: given 1.5, read as 1\n"
                          "f.json: nothing written; --force writes the result all the same\n"}));
    ExpectUntouched();
}

TEST_F(ToolInPlace, ForceTakesWhatIsStored)
{
    EXPECT_EQ(Run({"set", "f.json", "radius", "7.5", "--in-place", "--force"}),
              (ToolResult{1, "", "f.json: radius: given 7.5, read as 7\n"}));
    EXPECT_EQ(Content("f.json"), NEW);
}

TEST_F(ToolInPlace, NormalisesWhatLosesNothing)
{
    Write("f.json", R"({"name":"EFFECT_ACID","radius":7,"sigma":0.5})");
    EXPECT_EQ(Run({"normalise", "f.json", "--in-place"}), (ToolResult{0, "", ""}));
    EXPECT_EQ(Content("f.json"), NEW);
}

TEST_F(ToolInPlace, DropsKeysOnlyByForce)
{
    const char* content = R"({"name":"EFFECT_ACID","radius":7,"other":1})";
    Write("f.json", content);
    EXPECT_EQ(Run({"normalise", "f.json", "--in-place"}),
              (ToolResult{1, "",
                          "f.json:1:42: warning: other: the key is not known, so its value is lost [unknown-key]\n"
                          "f.json: nothing written; --force writes the result all the same\n"}));
    EXPECT_EQ(Content("f.json"), content);
    EXPECT_EQ(Run({"normalise", "f.json", "--in-place", "--force"}),
              (ToolResult{1, "", "f.json:1:42: warning: other: the key is not known, so its value is lost [unknown-key]\n"}));
    EXPECT_EQ(Content("f.json"), NEW);
}

TEST_F(ToolInPlace, TakesNamesThatAreNotAscii)
{
    const std::string name = "\u00DCbung \u5F71.json";
    Write(name, OLD);
    EXPECT_EQ(SetRadius({}, name), (ToolResult{0, "", ""}));
    EXPECT_EQ(Content(name), NEW);
    EXPECT_EQ(Run({"show", "\u00DC.json"}), (ToolResult{3, "", "\u00DC.json: cannot be read: No such file or directory\n"}));
    fs::create_directory(At("\u5F71"));
    Write("\u5F71/\u00DC.json", "{");
    EXPECT_EQ(Run({"check", "--quiet", "\u5F71"}),
              (ToolResult{4, "", "\u5F71/\u00DC.json:1:2: unexpected end of input; expected string literal\n"}));
}

TEST_F(ToolInPlace, HandsThroughTextsAndLineEndsUnchanged)
{
    const std::string effect = "{\r\n\"name\":\"EFFECT_ACID\",\"implName\":\"\u00DC\u5F71\"}\r\n";
    EXPECT_EQ(Run({"get", "-", "implName"}, {.input = effect}), (ToolResult{0, "\"\u00DC\u5F71\"\n", ""}));
    EXPECT_EQ(Run({"set", "-", "implName", "\u5F71"}, {.input = effect}),
              (ToolResult{0, "{\n  \"implName\": \"\u5F71\",\n  \"name\": \"EFFECT_ACID\"\n}\n", ""}));
    EXPECT_EQ(Run({"normalise", "--lines", "-"}, {.input = "\r\n\x1a\n"}).out, "\r\n\x1a\n");
}

} // namespace
} // namespace Ombrel
