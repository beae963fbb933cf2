#include "ToolRunner.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <regex>
#include <string>

namespace Ombrel
{
namespace
{

using testing::HasSubstr;

using ToolList = ToolTest;
using ToolNew = ToolTest;
using ToolShow = ToolTest;
using ToolGet = ToolTest;

TEST_F(ToolList, NamesClassIdInputsAndRegistration)
{
    const ToolResult result = Run({"list"});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.err, "");
    for (const char* line :
         {"(^|\n)AcidSettings +EFFECT_ACID +1 +registered\n", "\nAdjusterSettings +EFFECT_ADJUSTER +1 +registered\n",
          "\nEffectSettingsSimple +effectSettingsSimple +1 +registered\n"})
    {
        EXPECT_TRUE(std::regex_search(result.out, std::regex(line))) << line;
    }
}

TEST_F(ToolList, NamesEveryClass)
{
    const std::string list = Run({"list"}).out;
    const auto linesWith = [&list](const char* pattern)
    {
        const std::regex line(pattern);
        return std::distance(std::sregex_iterator(list.begin(), list.end(), line), std::sregex_iterator());
    };
    EXPECT_EQ(linesWith("Settings[A-Za-z]* +[A-Za-z_]+ +(1|2|var) +(registered|not registered)\n"),
              std::ranges::count(list, '\n'));
    const std::filesystem::directory_iterator examples(OMBREL_EXAMPLES); // one of each registered class
    EXPECT_EQ(linesWith(" registered\n") - linesWith(" not registered\n"), std::distance(examples, {}));
    EXPECT_EQ(linesWith("BlendSettings +EFFECT_BLEND +2 +not registered\n"), 1);
    EXPECT_EQ(linesWith("RemoveBackgroundSettings +EFFECT_REMOVE_BACKGROUND +var +registered\n"), 1);
}

TEST_F(ToolNew, HasEveryPropertyWithItsDefault)
{
    EXPECT_EQ(Run({"new", "EFFECT_ACID"}), (ToolResult{0,
                                                       "{\n"
                                                       "  \"name\": \"EFFECT_ACID\",\n"
                                                       "  \"radius\": 0,\n"
                                                       "  \"sigma\": 0.5\n"
                                                       "}\n",
                                                       ""}));
}

TEST_F(ToolNew, IsTheStoredFormWithoutPropertyAccess)
{
    EXPECT_EQ(Run({"new", "effectSettingsSimple"}), (ToolResult{0,
                                                                "{\n"
                                                                "  \"name\": \"effectSettingsSimple\"\n"
                                                                "}\n",
                                                                ""}));
}

TEST_F(ToolNew, CanBeReadAgain)
{
    const ToolResult created = Run({"new", "EFFECT_ADJUSTER"});
    EXPECT_EQ(Run({"normalise", "-"}, {.input = created.out}), (ToolResult{0,
                                                                           "{\n"
                                                                           "  \"name\": \"EFFECT_ADJUSTER\"\n"
                                                                           "}\n",
                                                                           ""}));
}

TEST_F(ToolNew, RefusesAnUnknownId)
{
    EXPECT_EQ(Run({"new", "EFFECT_NONE"}),
              (ToolResult{2, "", "EFFECT_NONE: no such class id, expected one that \"ombrel-effects list\" shows\n"}));
}

TEST_F(ToolShow, MarksWhatIsNotTheDefault)
{
    EXPECT_EQ(RunOn(R"({"name":"EFFECT_ACID","radius":5,"sigma":0.5})", {"show"}), (ToolResult{0,
                                                                                               "EFFECT_ACID  AcidSettings\n"
                                                                                               "  * radius = 5\n"
                                                                                               "    sigma = 0.5\n",
                                                                                               ""}));
}

TEST_F(ToolShow, NumbersTheEffectsOfAListAndKeepsNull)
{
    EXPECT_EQ(RunOn(R"([{"name":"EFFECT_VIBRANCE"},null,{"name":"EFFECT_EMPTY","value":"NaN"}])", {"show"}),
              (ToolResult{0,
                          "0  EFFECT_VIBRANCE  VibranceSettings\n"
                          "    strength = 0\n"
                          "1  null\n"
                          "2  EFFECT_EMPTY  EmptySettings\n"
                          "  * value = \"NaN\"\n",
                          ""}));
}

TEST_F(ToolShow, HasImplementationAndHelperSettings)
{
    EXPECT_EQ(RunOn(R"({"name":"EFFECT_VIBRANCE","implName":"ffmpeg","helperSettings":{"undoSet":true}})", {"show"}),
              (ToolResult{
                  0,
                  "EFFECT_VIBRANCE  VibranceSettings\n"
                  "  * helperSettings = {\"applyMode\":[],\"maxHeight\":4294967295,\"maxWidth\":4294967295,\"undoSet\":true}\n"
                  "  * implName = \"ffmpeg\"\n"
                  "    strength = 0\n",
                  ""}));
}

TEST_F(ToolShow, ShowsTheOthersBesideAnUnknownOne)
{
    EXPECT_EQ(RunOn(R"([{"name":"EFFECT_NONE"},{"name":"EFFECT_VIBRANCE"}])", {"show"}),
              (ToolResult{0,
                          "0  EFFECT_NONE\n"
                          "  ! name = \"EFFECT_NONE\": \"EFFECT_NONE\" is no known effect; expected a class id "
                          "[unknown-effect]\n"
                          "1  EFFECT_VIBRANCE  VibranceSettings\n"
                          "    strength = 0\n",
                          ""}));
}

TEST_F(ToolShow, HidesNothingThatAReadChangesOrLoses)
{
    const char* content = R"({"name":"EFFECT_TRANSPOSE","angle":"Angle_91","angel":2,"implName":"default"})";
    const std::string wrong =
        "  ! angle = \"Angle_91\": \"Angle_91\" reads as \"NoRotation\"; expected one of the names \"NoRotation\", "
        "\"Angle_90\", \"Angle_180\", \"Angle_270\"; did you mean \"Angle_90\"? [unknown-name]\n"
        "  ! angel = 2: the key is not known, so its value is lost; did you mean \"angle\"? [unknown-key]\n";
    EXPECT_EQ(RunOn(content, {"show"}),
              (ToolResult{0, "EFFECT_TRANSPOSE  TransposeSettings\n    angle = \"NoRotation\"\n" + wrong, ""}));
    EXPECT_EQ(RunOn(content, {"show", "--changed"}), (ToolResult{0, "EFFECT_TRANSPOSE  TransposeSettings\n" + wrong, ""}));
}

TEST_F(ToolShow, IsFourWhereAnEffectCannotBeRead)
{
    EXPECT_EQ(RunOn(R"({"name":"EFFECT_ACID","radius":"\u001b","sigma":2})", {"show", "--changed"}),
              (ToolResult{4,
                          "EFFECT_ACID  AcidSettings\n"
                          "  * sigma = 2.0\n"
                          "  ! radius = \"\\u001b\": expected an integer from -2147483648 to 2147483647, found "
                          "\"\\u001b\" [wrong-kind]\n",
                          ""}));
}

TEST_F(ToolShow, HasEveryKeyAsJson)
{
    EXPECT_EQ(RunOn(R"([null,{"name":"EFFECT_VIBRANCE"}])", {"show", "--json"}), (ToolResult{0, R"([
  null,
  {
    "helperSettings": {
      "applyMode": [],
      "maxHeight": 4294967295,
      "maxWidth": 4294967295,
      "undoSet": false
    },
    "implName": "default",
    "name": "EFFECT_VIBRANCE",
    "strength": 0
  }
]
)",
                                                                                             ""}));
}

TEST_F(ToolShow, SaysNothingOfAnEmptyList)
{
    EXPECT_EQ(RunOn("[]", {"show"}), (ToolResult{0, "", ""}));
}

TEST_F(ToolShow, ReadsStandardInput)
{
    EXPECT_EQ(Run({"show", "-"}, {.input = R"({"name":"EFFECT_VIBRANCE","strength":2})"}),
              (ToolResult{0, "EFFECT_VIBRANCE  VibranceSettings\n  * strength = 2\n", ""}));
}

struct Request
{
    const char* content;
    const char* path;
    ToolResult expected;
};

class ToolGetValue : public ToolTest, public testing::WithParamInterface<Request>
{
};

void PrintTo(const Request& request, std::ostream* out)
{
    *out << request.path << " of " << request.content;
}

TEST_P(ToolGetValue, IsPrintedOrMissed)
{
    EXPECT_EQ(RunOn(GetParam().content, {"get", GetParam().path}), GetParam().expected);
}

constexpr const char* LIST = R"([{"name":"EFFECT_ACID","radius":5},null,{"name":"EFFECT_ADJUSTER","smartBlur":{"lumaBlur":4}},)"
                             R"({"name":"effectSettingsSimple"}])";
constexpr const char* SINGLE = R"({"name":"EFFECT_ACID","radius":5})";

INSTANTIATE_TEST_SUITE_P(
    Found, ToolGetValue,
    testing::Values(Request{LIST, "0/radius", {0, "5\n", ""}}, Request{LIST, "0/sigma", {0, "0.5\n", ""}},
                    Request{LIST, "2/smartBlur/lumaBlur", {0, "4\n", ""}},
                    Request{LIST, "2/smartBlur/lumaRadius", {0, "0\n", ""}},                 // the nested record's own default
                    Request{LIST, "2/detailsEnhance", {0, "{\n  \"strength\": 0\n}\n", ""}}, // the enclosing record's
                    Request{SINGLE, "radius", {0, "5\n", ""}},
                    Request{R"({"name":"EFFECT_EMPTY","value":"a \"b\""})", "value", {0, "\"a \\\"b\\\"\"\n", ""}},
                    Request{LIST, "1", {0, "null\n", ""}}, Request{LIST, "0/name", {0, "\"EFFECT_ACID\"\n", ""}},
                    Request{LIST, "0/implName", {0, "\"default\"\n", ""}},
                    Request{LIST, "0/helperSettings/maxWidth", {0, "4294967295\n", ""}},
                    Request{R"({"name":"EFFECT_ACID","radius":5.5})", "radius", {0, "5\n", ""}}, // as it is read
                    Request{R"({"name":"EFFECT_VIBRANCE"})",
                            "helperSettings",
                            {0,
                             "{\n  \"applyMode\": [],\n  \"maxHeight\": 4294967295,\n  \"maxWidth\": 4294967295,\n  "
                             "\"undoSet\": false\n}\n",
                             ""}}));

INSTANTIATE_TEST_SUITE_P(
    Missed, ToolGetValue,
    testing::Values(
        Request{LIST, "4/radius", {2, "", "f.json: 4: no such effect, expected an index from 0 to 3\n"}},
        Request{LIST, "00/radius", {2, "", "f.json: 00: no such effect, expected an index from 0 to 3\n"}},
        Request{LIST, "-1/radius", {2, "", "f.json: -1: no such effect, expected an index from 0 to 3\n"}},
        Request{LIST, "radius", {2, "", "f.json: radius: no such effect, expected an index from 0 to 3\n"}},
        Request{"[]", "0/radius", {2, "", "f.json: 0: no such effect, the list is empty\n"}},
        Request{LIST, "1/radius", {2, "", "f.json: 1/radius: does not exist, there is nothing below null\n"}},
        Request{LIST,
                "0/radios",
                {2, "",
                 "f.json: 0/radios: does not exist, did you mean radius? expected one of helperSettings, implName, name, "
                 "radius, sigma\n"}},
        Request{
            LIST, "0/", {2, "", "f.json: 0/: does not exist, expected one of helperSettings, implName, name, radius, sigma\n"}},
        Request{
            SINGLE,
            "0/radius",
            {2, "",
             "f.json: 0: does not exist, expected one of helperSettings, implName, name, radius, sigma; the file is a single "
             "effect, so the index is left out\n"}},
        Request{LIST, "0/radius/0", {2, "", "f.json: 0/radius/0: does not exist, there is nothing below an integer\n"}},
        Request{LIST,
                "2/colorBalanceAuto/gamma",
                {2, "",
                 "f.json: 2/colorBalanceAuto/gamma: does not exist, expected one of exposure, lightBalance, whiteBalance\n"}},
        Request{LIST,
                "0/a~1b~0",
                {2, "", "f.json: 0/a~1b~0: does not exist, expected one of helperSettings, implName, name, radius, sigma\n"}},
        Request{
            LIST, "3/radius", {2, "", "f.json: 3/radius: does not exist, expected one of helperSettings, implName, name\n"}},
        Request{R"({"name":"EFFECT_NONE","radius":5})",
                "radius",
                {4, "", "f.json:1:9: error: name: \"EFFECT_NONE\" is no known effect; expected a class id [unknown-effect]\n"}},
        Request{R"({"name":"EFFECT_ADJUSTER","smartBlur":true})",
                "smartBlur/lumaBlur",
                {4, "", "f.json:1:39: error: smartBlur: expected a map, found true [wrong-kind]\n"}}));

TEST_F(ToolGet, PrintsWhatStandsThereIfRaw)
{
    const char* content = R"([{"name":"EFFECT_NONE","a/b":[1,{"c":1.50}]},{"name":"EFFECT_ACID","radius":"x"}])";
    EXPECT_EQ(RunOn(content, {"get", "--raw", "0/a~1b/1/c"}), (ToolResult{0, "1.5\n", ""}));
    EXPECT_EQ(RunOn(content, {"get", "--raw", "1/radius"}), (ToolResult{0, "\"x\"\n", ""}));
    EXPECT_EQ(RunOn(content, {"get", "--raw", "1"}),
              (ToolResult{0, "{\n  \"name\": \"EFFECT_ACID\",\n  \"radius\": \"x\"\n}\n", ""}));
    EXPECT_EQ(RunOn(content, {"get", "--raw", "1/sigma"}),
              (ToolResult{2, "", "f.json: 1/sigma: does not exist, expected one of name, radius\n"}));
}

TEST_F(ToolGet, ReadsBesideWhatCannotBeRead)
{
    const char* content = R"({"name":"EFFECT_ACID","radius":"x","sigma":2})";
    EXPECT_EQ(RunOn(content, {"get", "sigma"}), (ToolResult{0, "2.0\n", ""}));
}

TEST_F(ToolGet, ReadsOnlyTheAddressedEffect)
{
    EXPECT_EQ(RunOn(R"([{"name":"EFFECT_NONE"},{"name":"EFFECT_ACID"}])", {"get", "1/sigma"}), (ToolResult{0, "0.5\n", ""}));
}

TEST_F(ToolGet, PrintsNoNumberOnlyAsText)
{
    constexpr const char* content = R"({"name":"EFFECT_ACID","sigma":"-Infinity"})";
    EXPECT_EQ(RunOn(content, {"get", "sigma", "--non-finite"}), (ToolResult{0, "\"-Infinity\"\n", ""}));
    EXPECT_THAT(RunOn(content, {"get", "sigma"}).err, HasSubstr("sigma: expected a number, found \"-Infinity\" [wrong-kind]"));
}

} // namespace
} // namespace Ombrel
