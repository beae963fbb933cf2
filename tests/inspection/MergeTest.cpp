#include "Inspection/Merge.h"

#include "PropertyTree/PropertyTreeOutput.h"
#include "PropertyTreeJson/PropertyTreeJson.h"

#include <gtest/gtest.h>

#include <optional>
#include <ostream>
#include <sstream>
#include <string>

namespace
{

using namespace Ombrel;
using namespace Ombrel::Inspection;

struct Case
{
    const char* base;
    const char* ours;
    const char* theirs;
    const char* merged;
    const char* conflicts; // "path: base, ours, theirs" in lines
};

void PrintTo(const Case& one, std::ostream* out)
{
    *out << one.base << " to " << one.ours << " and " << one.theirs;
}

std::string Shown(const std::optional<PropertyTree>& value)
{
    std::ostringstream out;
    if (value && value->isMap() && value->contains("name"))
    {
        out << (*value)["name"].getScalar().toString();
    }
    else if (value && value->isList() && !value->getList().empty() && value->getList().front().contains("name"))
    {
        out << value->getList().size() << " effects";
    }
    else if (value)
    {
        out << *value;
    }
    else
    {
        out << "nothing";
    }
    return out.str();
}

std::string Lines(const std::vector<MergeConflict>& conflicts)
{
    std::string lines;
    for (const MergeConflict& conflict : conflicts)
    {
        lines += conflict.path.ToText() + ": " + Shown(conflict.base) + ", " + Shown(conflict.ours) + ", " +
                 Shown(conflict.theirs) + "\n";
    }
    return lines;
}

class MergeOf : public testing::TestWithParam<Case>
{
};

TEST_P(MergeOf, MakesThis)
{
    const MergeResult result = Merge(ReadJson(GetParam().base), ReadJson(GetParam().ours), ReadJson(GetParam().theirs));
    EXPECT_EQ(WriteJson(result.merged), WriteJson(ReadJson(GetParam().merged)));
    EXPECT_EQ(Lines(result.conflicts), GetParam().conflicts);
}

constexpr const char* ACID = R"({"name": "EFFECT_ACID", "radius": 1})";
constexpr const char* TWO = R"([{"name": "EFFECT_ACID", "radius": 1}, {"name": "EFFECT_VIBRANCE", "strength": 5}])";

INSTANTIATE_TEST_SUITE_P(
    Values, MergeOf,
    testing::Values(Case{ACID, R"({"name": "EFFECT_ACID", "radius": 2})", R"({"name": "EFFECT_ACID", "radius": 1, "sigma": 3})",
                         R"({"name": "EFFECT_ACID", "radius": 2, "sigma": 3})", ""},
                    Case{ACID, R"({"name": "EFFECT_ACID", "radius": 2})", R"({"name": "EFFECT_ACID", "radius": 2.0})",
                         R"({"name": "EFFECT_ACID", "radius": 2})", ""},
                    Case{ACID, R"({"name": "EFFECT_ACID", "radius": 2})", R"({"name": "EFFECT_ACID", "radius": 3})",
                         R"({"name": "EFFECT_ACID", "radius": 2})", "radius: 1, 2, 3\n"},
                    Case{ACID, R"({"name": "EFFECT_ACID"})", R"({"name": "EFFECT_ACID", "radius": 0, "sigma": 2})",
                         R"({"name": "EFFECT_ACID", "sigma": 2})", ""},
                    Case{ACID, R"({"name": "EFFECT_ACID", "radius": 1, "later": 1})",
                         R"({"name": "EFFECT_ACID", "radius": 1, "later": 2})",
                         R"({"name": "EFFECT_ACID", "radius": 1, "later": 1})", "later: nothing, 1, 2\n"},
                    Case{R"({"name": "EFFECT_ACID", "later": 1})", R"({"name": "EFFECT_ACID"})",
                         R"({"name": "EFFECT_ACID", "later": 1})", R"({"name": "EFFECT_ACID"})", ""},
                    Case{R"({"name": "EFFECT_ACID", "later": 1})", R"({"name": "EFFECT_ACID", "later": 1})",
                         R"({"name": "EFFECT_ACID"})", R"({"name": "EFFECT_ACID"})", ""},
                    // A record that ours does not store comes whole.
                    Case{R"({"name": "EFFECT_ACID"})", R"({"name": "EFFECT_ACID", "radius": 2})",
                         R"({"name": "EFFECT_ACID", "helperSettings": {"maxWidth": 9}})",
                         R"({"name": "EFFECT_ACID", "radius": 2, "helperSettings": {"applyMode": [], "maxHeight": 4294967295,
                             "maxWidth": 9, "undoSet": false}})",
                         ""},
                    Case{ACID, R"({"name": "EFFECT_EMPTY"})", R"({"name": "EFFECT_ACID", "radius": 2})",
                         R"({"name": "EFFECT_EMPTY"})", ": EFFECT_ACID, EFFECT_EMPTY, EFFECT_ACID\n"},
                    Case{R"({"name": "EFFECT_NEGATE_VIDEO", "mode": ["Red", "Alpha"]})",
                         R"({"name": "EFFECT_NEGATE_VIDEO", "mode": ["Alpha", "Red"]})",
                         R"({"name": "EFFECT_NEGATE_VIDEO", "mode": ["Red"]})",
                         R"({"name": "EFFECT_NEGATE_VIDEO", "mode": ["Red"]})", ""}));

INSTANTIATE_TEST_SUITE_P(
    Lists, MergeOf,
    testing::Values(
        Case{TWO, R"([{"name": "EFFECT_ACID", "radius": 2}, {"name": "EFFECT_VIBRANCE", "strength": 5}])",
             R"([{"name": "EFFECT_VIBRANCE", "strength": 6}, {"name": "EFFECT_ACID", "radius": 1}])",
             R"([{"name": "EFFECT_VIBRANCE", "strength": 6}, {"name": "EFFECT_ACID", "radius": 2}])", ""},
        // Both put something behind the same effect; the same only once.
        Case{
            TWO, R"([{"name": "EFFECT_ACID", "radius": 1}, {"name": "EFFECT_EMPTY"}, {"name": "EFFECT_SEPIA"},
                      {"name": "EFFECT_VIBRANCE", "strength": 5}])",
            R"([{"name": "EFFECT_ACID", "radius": 1}, {"name": "EFFECT_BLUR"}, {"name": "EFFECT_SEPIA"},
                 {"name": "EFFECT_VIBRANCE", "strength": 5}])",
            R"([{"name": "EFFECT_ACID", "radius": 1}, {"name": "EFFECT_EMPTY"}, {"name": "EFFECT_SEPIA"}, {"name": "EFFECT_BLUR"},
                 {"name": "EFFECT_VIBRANCE", "strength": 5}])",
            ""},
        // Each takes out one; what the other has changed is a conflict.
        Case{TWO, R"([{"name": "EFFECT_VIBRANCE", "strength": 5}])", R"([{"name": "EFFECT_ACID", "radius": 1}])", "[]", ""},
        Case{TWO, R"([{"name": "EFFECT_ACID", "radius": 1}, {"name": "EFFECT_VIBRANCE", "strength": 6}])",
             R"([{"name": "EFFECT_ACID", "radius": 1}])",
             R"([{"name": "EFFECT_ACID", "radius": 1}, {"name": "EFFECT_VIBRANCE", "strength": 6}])",
             "1: EFFECT_VIBRANCE, EFFECT_VIBRANCE, nothing\n"},
        Case{TWO, R"([{"name": "EFFECT_ACID", "radius": 1}])",
             R"([{"name": "EFFECT_ACID", "radius": 1}, {"name": "EFFECT_VIBRANCE", "strength": 6}])",
             R"([{"name": "EFFECT_ACID", "radius": 1}])", ": EFFECT_VIBRANCE, nothing, EFFECT_VIBRANCE\n"},
        // Both move: a conflict if not to the same.
        Case{R"([{"name": "EFFECT_ACID"}, {"name": "EFFECT_EMPTY"}, {"name": "EFFECT_SEPIA"}])",
             R"([{"name": "EFFECT_EMPTY"}, {"name": "EFFECT_ACID"}, {"name": "EFFECT_SEPIA"}])",
             R"([{"name": "EFFECT_ACID"}, {"name": "EFFECT_SEPIA"}, {"name": "EFFECT_EMPTY"}])",
             R"([{"name": "EFFECT_EMPTY"}, {"name": "EFFECT_ACID"}, {"name": "EFFECT_SEPIA"}])",
             ": 3 effects, 3 effects, 3 effects\n"},
        Case{R"({"name": "effectSettingsTileStub", "pre": [{"name": "EFFECT_ACID"}]})",
             R"({"name": "effectSettingsTileStub", "pre": [{"name": "EFFECT_ACID", "radius": 3}]})",
             R"({"name": "effectSettingsTileStub", "pre": [{"name": "EFFECT_EMPTY"}, {"name": "EFFECT_ACID"}]})",
             R"({"name": "effectSettingsTileStub", "pre": [{"name": "EFFECT_EMPTY"}, {"name": "EFFECT_ACID", "radius": 3}]})",
             ""},
        // Other lists as a whole where one side has changed their length.
        Case{R"({"name": "EFFECT_BLUR_RADIAL", "trace": [{"x": 1, "y": 1}, {"x": 2, "y": 2}]})",
             R"({"name": "EFFECT_BLUR_RADIAL", "trace": [{"x": 5, "y": 1}, {"x": 2, "y": 2}]})",
             R"({"name": "EFFECT_BLUR_RADIAL", "trace": [{"x": 1, "y": 6}, {"x": 2, "y": 2}]})",
             R"({"name": "EFFECT_BLUR_RADIAL", "trace": [{"x": 5, "y": 6}, {"x": 2, "y": 2}]})", ""},
        Case{R"({"name": "EFFECT_BLUR_RADIAL", "trace": [{"x": 1, "y": 1}, {"x": 2, "y": 2}]})",
             R"({"name": "EFFECT_BLUR_RADIAL", "trace": [{"x": 1, "y": 1}]})",
             R"({"name": "EFFECT_BLUR_RADIAL", "trace": [{"x": 1, "y": 6}, {"x": 2, "y": 2}]})",
             R"({"name": "EFFECT_BLUR_RADIAL", "trace": [{"x": 1, "y": 1}]})",
             "trace: [{\"x\": 1, \"y\": 1}, {\"x\": 2, \"y\": 2}], [{\"x\": 1, \"y\": 1}], [{\"x\": 1, \"y\": 6}, {\"x\": 2, "
             "\"y\": 2}]\n"},
        Case{"[]", ACID, TWO, ACID, ": [], EFFECT_ACID, 2 effects\n"}));

} // namespace
