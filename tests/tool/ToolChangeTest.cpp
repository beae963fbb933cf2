#include "ToolRunner.h"

#include <filesystem>

namespace Ombrel
{
namespace
{

using ToolDiff = ToolTest;
using ToolPatch = ToolTest;
using ToolMerge = ToolTest;
using ToolElements = ToolTest;

constexpr const char* BEFORE = R"([{"name":"EFFECT_ACID","radius":1},{"name":"EFFECT_ADJUSTER"}])";
constexpr const char* AFTER =
    R"([{"name":"EFFECT_ADJUSTER","smartBlur":{"chromaRadius":100,"lumaRadius":50}},{"name":"EFFECT_ACID","radius":2}])";

TEST_F(ToolDiff, SaysWhatDiffersByMeaning)
{
    Write("a.json", BEFORE);
    Write("b.json", AFTER);
    Write("c.json", R"([{"implName":"default","name":"EFFECT_ACID","radius":1.0},{"name":"EFFECT_ADJUSTER"}])");
    EXPECT_EQ(Run({"diff", "a.json", "b.json"}), (ToolResult{1,
                                                             "1: moved EFFECT_ADJUSTER to 0\n"
                                                             "0/smartBlur/lumaRadius: 100 -> 50\n"
                                                             "1/radius: 1 -> 2\n",
                                                             ""}));
    EXPECT_EQ(Run({"diff", "a.json", "c.json"}), (ToolResult{0, "", ""}));
    EXPECT_EQ(Run({"diff", "--json", "a.json", "c.json"}), (ToolResult{0, "[]\n", ""}));
}

TEST_F(ToolDiff, PairsTheFilesOfFolders)
{
    for (const char* folder : {"one", "other", "one/sub", "other/sub"})
    {
        std::filesystem::create_directory(At(folder));
    }
    Write("one/a.json", BEFORE);
    Write("one/sub/b.json", BEFORE);
    Write("one/c.json", BEFORE);
    Write("other/c.json", BEFORE);
    Write("other/sub/b.json", R"([{"name":"EFFECT_ACID","radius":1}])");
    Write("other/d.json", "x");
    Write("one/d.json", "[]");
    EXPECT_EQ(Run({"diff", "one", "other"}), (ToolResult{4,
                                                         "a.json: only in one\n"
                                                         "sub/b.json: 1: removed EFFECT_ADJUSTER\n",
                                                         "other/d.json:1:1: invalid literal\n"}));
    EXPECT_EQ(Run({"diff", "one", "one"}), (ToolResult{0, "", ""}));
    EXPECT_EQ(Run({"diff", "one", "one/a.json"}), (ToolResult{2, "", "a file and a folder cannot be compared\n"}));
    EXPECT_EQ(Run({"diff", "--json", "one", "other"}), (ToolResult{2, "", "--json compares two files, not folders\n"}));
}

TEST_F(ToolDiff, SaysWhatCannotBeRead)
{
    Write("a.json", BEFORE);
    Write("x.json", "[");
    EXPECT_EQ(Run({"diff", "a.json", "x.json"}).code, 4);
    EXPECT_EQ(Run({"diff", "none.json", "a.json"}).code, 3);
    EXPECT_EQ(Run({"diff", "a.json"}).code, 2);
}

TEST_F(ToolPatch, DoesWhatDiffSays)
{
    Write("a.json", BEFORE);
    Write("b.json", AFTER);
    Write("p.json", Run({"diff", "--json", "a.json", "b.json"}).out);
    EXPECT_EQ(Run({"patch", "--in-place", "a.json", "p.json"}), (ToolResult{0, "", ""}));
    EXPECT_EQ(Run({"diff", "a.json", "b.json"}), (ToolResult{0, "", ""}));
    const std::string content = Content("a.json");
    EXPECT_EQ(Run({"patch", "--in-place", "a.json", "p.json"}),
              (ToolResult{1, "", "p.json: operation 0: test /1: expected a map, found a map\n"}));
    EXPECT_EQ(Content("a.json"), content);
}

TEST_F(ToolPatch, RefusesWhatIsNone)
{
    Write("p.json", R"({"op":"add"})");
    EXPECT_EQ(RunOn(BEFORE, {"patch", "p.json"}), (ToolResult{4, "", "p.json: a patch is a list of operations\n"}));
    Write("q.json", R"([{"op":"add","path":"/0/radius\u0007"}])");
    EXPECT_EQ(RunOn(BEFORE, {"patch", "q.json"}),
              (ToolResult{1, "", "q.json: operation 0: add /0/radius\\u0007: \"value\" is missing\n"}));
    std::string copies = "[";
    for (int count = 0; count != 60; ++count)
    {
        copies += std::string(count == 0 ? "" : ",") + R"({"op":"copy","from":"","path":"/-"})";
    }
    Write("r.json", copies + "]");
    EXPECT_EQ(RunOn(BEFORE, {"patch", "r.json"}),
              (ToolResult{1, "", "r.json: operation 18: copy /-: the patch copies too many values\n"}));
}

TEST_F(ToolMerge, TakesWhatBothHaveChanged)
{
    Write("base.json", BEFORE);
    Write("ours.json", R"([{"name":"EFFECT_ACID","radius":1,"sigma":3},{"name":"EFFECT_ADJUSTER"}])");
    Write("theirs.json", R"([{"name":"EFFECT_EMPTY"},{"name":"EFFECT_ACID","radius":2},{"name":"EFFECT_ADJUSTER"}])");
    EXPECT_EQ(Run({"merge", "--in-place", "base.json", "ours.json", "theirs.json"}), (ToolResult{0, "", ""}));
    Write("merged.json", R"([{"name":"EFFECT_EMPTY"},{"name":"EFFECT_ACID","radius":2,"sigma":3},{"name":"EFFECT_ADJUSTER"}])");
    EXPECT_EQ(Run({"diff", "ours.json", "merged.json"}), (ToolResult{0, "", ""}));
}

TEST_F(ToolMerge, SaysWhereBothDiffer)
{
    Write("base.json", R"({"name":"EFFECT_ACID","radius":1})");
    Write("ours.json", R"({"name":"EFFECT_ACID","radius":2})");
    Write("theirs.json", R"({"name":"EFFECT_ACID","radius":3})");
    const std::string conflict = "ours.json: radius: conflict: base 1, ours 2, theirs 3\n";
    const std::string nothing = "ours.json: nothing written; --force writes the result all the same\n";
    EXPECT_EQ(Run({"merge", "base.json", "ours.json", "theirs.json"}), (ToolResult{1, "", conflict + nothing}));
    EXPECT_EQ(Run({"merge", "--force", "base.json", "ours.json", "theirs.json"}),
              (ToolResult{1, "{\n  \"name\": \"EFFECT_ACID\",\n  \"radius\": 2\n}\n", conflict}));
}

TEST_F(ToolElements, ArePutIn)
{
    constexpr const char* one = "[\n  {\n    \"name\": \"EFFECT_ACID\"\n  }\n]\n";
    EXPECT_EQ(RunOn("[]", {"insert", "0", "EFFECT_ACID"}), (ToolResult{0, one, ""}));
    EXPECT_EQ(RunOn("[]", {"insert", "-", R"({"name":"EFFECT_ACID"})"}), (ToolResult{0, one, ""}));
    EXPECT_EQ(RunOn(BEFORE, {"insert", "3", "EFFECT_ACID"}),
              (ToolResult{2, "", "f.json: 3: no such element, expected an index from 0 to 2, or - for the end\n"}));
    EXPECT_EQ(RunOn(BEFORE, {"insert", "0", "EFFECT_ACIT"}),
              (ToolResult{2, "", "f.json: 0: neither a class id nor JSON: 1:1: invalid literal; did you mean EFFECT_ACID?\n"}));
    EXPECT_EQ(RunOn(BEFORE, {"insert", "0/radius/0", "1"}),
              (ToolResult{2, "", "f.json: 0/radius/0: expected an element of a list, found a value in an integer\n"}));
    EXPECT_EQ(RunOn(BEFORE, {"insert", "0/x/0", "1"}), (ToolResult{2, "", "f.json: 0/x/0: there is no such list\n"}));
    EXPECT_EQ(RunOn(BEFORE, {"insert", "0", R"({"name":"EFFECT_ACID","radius":"x"})"}),
              (ToolResult{2, "",
                          "f.json: 0/radius: expected an integer from -2147483648 to 2147483647, found \"x\" [wrong-kind]\n"}));
    EXPECT_EQ(RunOn("[]", {"insert", "0", R"({"name":"EFFECT_OF_TOMORROW"})"}).code, 0);
}

TEST_F(ToolElements, AreTakenOut)
{
    EXPECT_EQ(RunOn(BEFORE, {"remove", "1"}),
              (ToolResult{0, "[\n  {\n    \"name\": \"EFFECT_ACID\",\n    \"radius\": 1\n  }\n]\n", ""}));
    EXPECT_EQ(RunOn("[null]", {"remove", "0"}), (ToolResult{0, "[]\n", ""}));
    EXPECT_EQ(RunOn("[]", {"remove", "0"}), (ToolResult{2, "", "f.json: 0: the list is empty\n"}));
    EXPECT_EQ(RunOn("[null]", {"remove", "-"}),
              (ToolResult{2, "", "f.json: -: no such element, expected an index from 0 to 0\n"}));
    EXPECT_EQ(RunOn(BEFORE, {"remove", "0/radius"}),
              (ToolResult{2, "", "f.json: 0/radius: expected an element of a list, found a value in a map\n"}));
}

TEST_F(ToolElements, AreMoved)
{
    constexpr const char* tile =
        R"([{"name":"effectSettingsTileStub","pre":[{"name":"EFFECT_ACID"},null]},{"name":"EFFECT_EMPTY"}])";
    Write("expected.json",
          R"([{"name":"EFFECT_EMPTY"},{"name":"effectSettingsTileStub","pre":[{"name":"EFFECT_ACID"},null]}])");
    Write("a.json", tile);
    EXPECT_EQ(Run({"move", "--in-place", "a.json", "0", "-"}), (ToolResult{0, "", ""}));
    EXPECT_EQ(Run({"diff", "a.json", "expected.json"}), (ToolResult{0, "", ""}));
    EXPECT_EQ(Run({"move", "--in-place", "a.json", "0", "0/pre/1"}), (ToolResult{0, "", ""}));
    Write("expected.json",
          R"([{"name":"effectSettingsTileStub","pre":[{"name":"EFFECT_ACID"},{"name":"EFFECT_EMPTY"},null]}])");
    EXPECT_EQ(Run({"diff", "a.json", "expected.json"}), (ToolResult{0, "", ""}));
    // The place is counted without the element, so that nothing comes into itself.
    EXPECT_EQ(Run({"move", "a.json", "0", "0/pre/0"}), (ToolResult{2, "", "a.json: 0/pre/0: there is no such list\n"}));
    EXPECT_EQ(Run({"move", "a.json", "1", "0"}),
              (ToolResult{2, "", "a.json: 1: no such element, expected an index from 0 to 0\n"}));
    EXPECT_EQ(Run({"extract", "a.json", "0/pre/1"}), (ToolResult{0, "{\n  \"name\": \"EFFECT_EMPTY\"\n}\n", ""}));
}

} // namespace
} // namespace Ombrel
