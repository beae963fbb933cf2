#include "ToolRunner.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace Ombrel
{
namespace
{

using testing::HasSubstr;

using ToolCheck = ToolTest;
using ToolFix = ToolTest;

constexpr const char* WRONG = R"([
  {"name": "EFFECT_ACID", "radius": 5.5, "sigma": "x"},
  {"name": "EFFECT_NONE"},
  {"name": "EFFECT_ACID", "sigma": 0.5, "radios": 1}
])";

constexpr const char* CUT =
    "f.json:2:37: warning: 0/radius: 5.5 reads as 5; expected an integer from -2147483648 to 2147483647 "
    "[truncated-float]";
constexpr const char* TEXT = "f.json:2:51: error: 0/sigma: expected a number, found \"x\" [wrong-kind]";
constexpr const char* UNKNOWN =
    "f.json:3:12: error: 1/name: \"EFFECT_NONE\" is no known effect; expected a class id [unknown-effect]";
constexpr const char* DEFAULT = "f.json:4:36: note: 2/sigma: it has its default and is not written again [default-written]";
constexpr const char* KEY = "f.json:4:51: warning: 2/radios: the key is not known, so its value is lost; did you mean "
                            "\"radius\"? [unknown-key]";

std::string Lines(const std::vector<const char*>& lines)
{
    std::string text;
    for (const char* line : lines)
    {
        text += line + std::string("\n");
    }
    return text;
}

TEST_F(ToolCheck, NamesAllThatIsWrongWithItsPlace)
{
    EXPECT_EQ(RunOn(WRONG, {"check"}),
              (ToolResult{1, Lines({CUT, TEXT, UNKNOWN, KEY, DEFAULT}), "2 errors, 2 warnings, 1 note\n"}));
    EXPECT_EQ(RunOn(WRONG, {"check", "--quiet"}), (ToolResult{1, Lines({CUT, TEXT, UNKNOWN, KEY, DEFAULT}), ""}));
}

TEST_F(ToolCheck, IsZeroWhereAllIsRead)
{
    EXPECT_EQ(RunOn("[]", {"check"}), (ToolResult{0, "", "0 errors, 0 warnings, 0 notes\n"}));
    const char* note = R"({"name":"EFFECT_ACID","sigma":0.5})";
    const std::string line = "f.json:1:31: note: sigma: it has its default and is not written again [default-written]\n";
    EXPECT_EQ(RunOn(note, {"check"}), (ToolResult{0, line, "0 errors, 0 warnings, 1 note\n"}));
    EXPECT_EQ(RunOn(note, {"check", "--strict"}), (ToolResult{1, line, "0 errors, 0 warnings, 1 note\n"}));
}

TEST_F(ToolCheck, LeavesOutWhatIsIgnored)
{
    EXPECT_EQ(RunOn(WRONG, {"check", "--ignore", "unknown-effect", "--ignore", "wrong-kind", "--ignore", "truncated-float",
                            "--ignore", "unknown-key"}),
              (ToolResult{0, Lines({DEFAULT}), "0 errors, 0 warnings, 1 note\n"}));
    EXPECT_EQ(RunOn(WRONG, {"check", "--ignore", "unknown-keys"}),
              (ToolResult{2, "", "unknown-keys: no such code, did you mean unknown-key?\n"}));
}

TEST_F(ToolCheck, TakesWhateverIsJsonForFindings)
{
    EXPECT_EQ(RunOn("5", {"check", "--quiet"}),
              (ToolResult{1, "f.json:1:1: error: expected an effect, found 5 [not-an-effect]\n", ""}));
    EXPECT_EQ(RunOn("null", {"check", "--quiet"}),
              (ToolResult{0, "f.json:1:1: note: no effect stands here [null-effect]\n", ""}));
    EXPECT_EQ(RunOn("{", {"check", "--quiet"}),
              (ToolResult{4, "", "f.json:1:2: unexpected end of input; expected string literal\n"}));
}

TEST_F(ToolCheck, TakesFilesAndFolders)
{
    std::filesystem::create_directories(At("looks/inner"));
    Write("looks/b.json", R"({"name":"EFFECT_NONE"})");
    Write("looks/a.json", "[");
    Write("looks/inner/c.json", R"([{"name":"EFFECT_ACID","radius":1}])");
    Write("looks/notes.txt", "no JSON");
    Write("single.look", R"({"name":"EFFECT_ACID","other":1})");
    const std::string out =
        "single.look:1:31: warning: other: the key is not known, so its value is lost [unknown-key]\n"
        "looks/b.json:1:9: error: name: \"EFFECT_NONE\" is no known effect; expected a class id [unknown-effect]\n"
        "<stdin>:1:1: error: the effect has no \"name\"; expected a class id [no-name]\n";
    const std::string err = "looks/a.json:1:2: at 0: unexpected end of input; expected '[', '{', or a literal\n"
                            "none.json: cannot be read: No such file or directory\n"
                            "2 errors, 1 warning, 0 notes\n";
    EXPECT_EQ(Run({"check", "single.look", "looks", "none.json", "-"}, {.input = "{}"}), (ToolResult{4, out, err}));
    EXPECT_EQ(Run({"check", "--jobs", "8", "single.look", "looks", "none.json", "-"}, {.input = "{}"}),
              (ToolResult{4, out, err}));
    std::filesystem::create_directory(At("empty"));
    EXPECT_EQ(Run({"check", "empty"}), (ToolResult{2, "", "empty: there is no *.json file below it\n"}));
}

TEST_F(ToolCheck, OfManyFilesKeepsTheirOrder)
{
    std::filesystem::create_directory(At("many"));
    std::string expected;
    for (int number = 1000; number < 1300; ++number)
    {
        const std::string name = "many/" + std::to_string(number) + ".json";
        Write(name, number % 7 == 0 ? std::string(2000, ' ') + "{}" : "{}");
        expected += name + (number % 7 == 0 ? ":1:2001" : ":1:1") +
                    ": error: the effect has no \"name\"; expected a class id [no-name]\n";
    }
    EXPECT_EQ(Run({"check", "--jobs", "4", "many"}), (ToolResult{1, expected, "300 errors, 0 warnings, 0 notes\n"}));
}

TEST_F(ToolCheck, PrintsALineOfJsonForEachFinding)
{
    const ToolResult result = RunOn(R"({"name":"EFFECT_ACID","radius":5.5,"~/":null})", {"check", "--json", "--quiet"});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(
        result.out,
        R"({"becomes":5,"code":"truncated-float","column":32,"expected":"an integer from -2147483648 to 2147483647",)"
        R"("file":"f.json","found":5.5,"line":1,"mend":"replace","message":"5.5 reads as 5","nearest":"","path":"radius",)"
        R"("severity":"warning"})"
        "\n"
        R"({"becomes":null,"code":"unknown-key","column":41,"expected":"","file":"f.json","found":null,"line":1,)"
        R"("mend":"remove","message":"the key is not known, so its value is lost","nearest":"","path":"~0~1",)"
        R"("severity":"warning"})"
        "\n");
}

TEST_F(ToolCheck, EndsWithTheLargestNumberOfFindings)
{
    EXPECT_EQ(RunOn(R"([{},{},{}])", {"check", "--max-findings", "2", "--quiet"}),
              (ToolResult{1,
                          "f.json:1:2: error: 0: the effect has no \"name\"; expected a class id [no-name]\n"
                          "f.json:1:5: error: 1: the effect has no \"name\"; expected a class id [no-name]\n",
                          "f.json: there may be more findings; --max-findings asks for them\n"}));
}

TEST_F(ToolCheck, RefusesAFileOfMoreBytes)
{
    EXPECT_EQ(
        RunOn("[null]", {"check", "--max-bytes", "5"}),
        (ToolResult{3, "", "f.json: is longer than the 5 bytes that --max-bytes allows\n0 errors, 0 warnings, 0 notes\n"}));
    EXPECT_EQ(RunOn("[    ]", {"check", "--max-bytes", "6", "--quiet"}), (ToolResult{0, "", ""}));
}

TEST_F(ToolFix, MendsWhatCanBeMendedAndNamesIt)
{
    EXPECT_EQ(RunOn(WRONG, {"check", "--fix"}),
              (ToolResult{1, R"([
  {
    "name": "EFFECT_ACID",
    "radius": 5
  },
  {
    "name": "EFFECT_NONE"
  },
  {
    "name": "EFFECT_ACID"
  }
]
)",
                          CUT + std::string(", mended\n") + TEXT + ", mended\n" + UNKNOWN + "\n" + KEY + ", mended\n" +
                              DEFAULT + ", mended\n1 error, 0 warnings, 0 notes left\n"}));
}

TEST_F(ToolFix, KeepsWhatIsIgnored)
{
    EXPECT_EQ(
        RunOn(R"({"name":"EFFECT_ACID","other":1,"sigma":"x"})", {"check", "--fix", "--ignore", "unknown-key", "--quiet"}),
        (ToolResult{0, "{\n  \"name\": \"EFFECT_ACID\",\n  \"other\": 1\n}\n",
                    "f.json:1:41: error: sigma: expected a number, found \"x\" [wrong-kind], mended\n"}));
}

TEST_F(ToolFix, ReplacesSeveralFiles)
{
    Write("a.json", R"({"name":"EFFECT_ACID","other":1})");
    Write("b.json", R"({"name":"EFFECT_ACID"})");
    EXPECT_EQ(Run({"check", "--fix", "a.json", "b.json"}),
              (ToolResult{2, "", "several files need --in-place, since only one document can be printed\n"}));
    EXPECT_EQ(
        Run({"check", "--fix", "--in-place", "--quiet", "a.json", "b.json"}),
        (ToolResult{0, "", "a.json:1:31: warning: other: the key is not known, so its value is lost [unknown-key], mended\n"}));
    EXPECT_EQ(Content("a.json"), "{\n  \"name\": \"EFFECT_ACID\"\n}\n");
    EXPECT_EQ(Content("b.json"), R"({"name":"EFFECT_ACID"})") << "a file in which nothing is to be mended was replaced";
    EXPECT_EQ(Run({"check", "--in-place", "a.json"}), (ToolResult{2, "", "--in-place needs --fix\n"}));
}

TEST_F(ToolCheck, WritesATestForEachFile)
{
    Write("a.json", R"({"name":"EFFECT_ACID"})");
    Write("b&.json", R"({"name":"EFFECT_ACID","radius":"\"<x>\"","sigma":3,"other":1})");
    Write("c.json", "[");
    Write("d.json", R"({"name":"EFFECT_ACID","implName":"default"})");
    EXPECT_EQ(Run({"check", "--quiet", "--jobs", "2", "--junit", "r.xml", "a.json", "b&.json", "c.json", "d.json"}).code, 4);
    EXPECT_EQ(Content("r.xml"),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
              "<testsuite name=\"ombrel-effects check\" tests=\"4\" failures=\"1\" errors=\"1\">\n"
              "  <testcase classname=\"ombrel-effects.check\" name=\"a.json\"/>\n"
              "  <testcase classname=\"ombrel-effects.check\" name=\"b&amp;.json\">\n"
              "    <failure message=\"1 error, 1 warning, 0 notes\">"
              "b&amp;.json:1:32: error: radius: expected an integer from -2147483648 to 2147483647, found "
              "&quot;&quot;&lt;x&gt;&quot;&quot; [wrong-kind]\n"
              "b&amp;.json:1:60: warning: other: the key is not known, so its value is lost [unknown-key]\n"
              "</failure>\n  </testcase>\n"
              "  <testcase classname=\"ombrel-effects.check\" name=\"c.json\">\n"
              "    <error message=\"cannot be checked\">c.json:1:2: at 0: unexpected end of input; expected '[', '{', or a "
              "literal\n</error>\n  </testcase>\n"
              "  <testcase classname=\"ombrel-effects.check\" name=\"d.json\">\n"
              "    <system-out>d.json:1:34: note: implName: it has its default and is not written again [default-written]\n"
              "</system-out>\n  </testcase>\n</testsuite>\n");
    EXPECT_EQ(Run({"check", "--lines", "--junit", "r.xml", "a.json"}),
              (ToolResult{2, "", "--junit has a test for each file, so that it excludes --lines\n"}));
    EXPECT_EQ(Run({"check", "--quiet", "--junit", "none/r.xml", "a.json"}).code, 3);
}

} // namespace
} // namespace Ombrel
