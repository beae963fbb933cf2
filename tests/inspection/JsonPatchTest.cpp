#include "Inspection/JsonPatch.h"

#include "PropertyTreeJson/PropertyTreeJson.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>

namespace
{

using namespace Ombrel;
using namespace Ombrel::Inspection;

struct Case
{
    const char* tree;
    const char* patch;
    const char* result; // or why it is refused
};

void PrintTo(const Case& one, std::ostream* out)
{
    *out << one.patch << " of " << one.tree;
}

class PatchOf : public testing::TestWithParam<Case>
{
};

TEST_P(PatchOf, MakesThis)
{
    PropertyTree tree = ReadJson(GetParam().tree);
    std::string result;
    try
    {
        ApplyJsonPatch(ReadJson(GetParam().patch), tree);
        result = WriteJson(tree);
    }
    catch (const JsonPatchError& error)
    {
        result = error.what();
        EXPECT_EQ(tree, ReadJson(GetParam().tree)); // nothing is done
    }
    EXPECT_EQ(result, GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(
    Operations, PatchOf,
    testing::Values(
        Case{R"({"foo": "bar"})", R"([{"op": "add", "path": "/baz", "value": "qux"}])", R"({"baz":"qux","foo":"bar"})"},
        Case{R"({"foo": ["bar", "baz"]})", R"([{"op": "add", "path": "/foo/1", "value": "qux"}])",
             R"({"foo":["bar","qux","baz"]})"},
        Case{R"({"baz": "qux", "foo": "bar"})", R"([{"op": "remove", "path": "/baz"}])", R"({"foo":"bar"})"},
        Case{R"({"foo": ["bar", "qux", "baz"]})", R"([{"op": "remove", "path": "/foo/1"}])", R"({"foo":["bar","baz"]})"},
        Case{R"({"baz": "qux"})", R"([{"op": "replace", "path": "/baz", "value": "boo"}])", R"({"baz":"boo"})"},
        Case{R"({"foo": {"bar": 1, "waldo": 2}, "qux": {"corge": 3}})",
             R"([{"op": "move", "from": "/foo/waldo", "path": "/qux/thud"}])",
             R"({"foo":{"bar":1},"qux":{"corge":3,"thud":2}})"},
        Case{R"({"foo": ["all", "grass", "cows", "eat"]})", R"([{"op": "move", "from": "/foo/1", "path": "/foo/3"}])",
             R"({"foo":["all","cows","eat","grass"]})"},
        Case{R"({"baz": "qux", "foo": ["a", 2, "c"]})",
             R"([{"op": "test", "path": "/baz", "value": "qux"}, {"op": "test", "path": "/foo/1", "value": 2}])",
             R"({"baz":"qux","foo":["a",2,"c"]})"},
        Case{R"({"foo": "bar"})", R"([{"op": "add", "path": "/child", "value": {"grandchild": {}}, "xyz": 123}])",
             R"({"child":{"grandchild":{}},"foo":"bar"})"},
        Case{R"({"/": 9, "~1": 10})", R"([{"op": "test", "path": "/~01", "value": 10}, {"op": "remove", "path": "/~1"}])",
             R"({"~1":10})"},
        Case{R"({"foo": ["bar"]})", R"([{"op": "add", "path": "/foo/-", "value": ["abc"]}])", R"({"foo":["bar",["abc"]]})"},
        Case{R"({"a": 1})", R"([{"op": "copy", "from": "", "path": "/b"}])", R"({"a":1,"b":{"a":1}})"},
        Case{R"({"a": 1})", R"([{"op": "add", "path": "", "value": 3}])", "3"},
        Case{R"({"a": 1})", R"([{"op": "replace", "path": "", "value": [1]}, {"op": "add", "path": "/0", "value": 0}])",
             "[0,1]"},
        Case{R"({"a": 1})", R"([{"op": "move", "from": "/a", "path": "/a"}])", R"({"a":1})"},
        Case{R"({"": 1})", R"([{"op": "replace", "path": "/", "value": 2}])", R"({"":2})"},
        Case{R"({"-": 1})", R"([{"op": "replace", "path": "/-", "value": 2}])", R"({"-":2})"},
        Case{R"({"a": 5})", R"([{"op": "test", "path": "/a", "value": 5.0}])", R"({"a":5})"},
        Case{R"({"a": {"b": [1, {}]}})", R"([{"op": "test", "path": "", "value": {"a": {"b": [1, {}]}}}])",
             R"({"a":{"b":[1,{}]}})"},
        Case{"[1]", "[]", "[1]"}));

INSTANTIATE_TEST_SUITE_P(
    Refusals, PatchOf,
    testing::Values(
        Case{R"({"baz": "qux"})", R"([{"op": "test", "path": "/baz", "value": "bar"}])",
             "operation 0: test /baz: expected \"bar\", found \"qux\""},
        Case{R"({"a": true})", R"([{"op": "test", "path": "/a", "value": 1}])", "operation 0: test /a: expected 1, found true"},
        Case{R"({"a": 1})", R"([{"op": "test", "path": "/a", "value": "1"}])", "operation 0: test /a: expected \"1\", found 1"},
        Case{R"({"foo": "bar"})", R"([{"op": "add", "path": "/baz/bat", "value": 1}])",
             "operation 0: add /baz/bat: there is no such value"},
        Case{"[1]", R"([{"op": "add", "path": "/2", "value": 1}])", "operation 0: add /2: the list has no such place"},
        Case{"[1]", R"([{"op": "add", "path": "/x", "value": 1}])", "operation 0: add /x: the list has no such place"},
        Case{"[1]", R"([{"op": "replace", "path": "/-", "value": 1}])", "operation 0: replace /-: there is no such value"},
        Case{"[1, 2]", R"([{"op": "remove", "path": "/01"}])", "operation 0: remove /01: there is no such value"},
        Case{"[1, 2]", R"([{"op": "remove", "path": "/-1"}])", "operation 0: remove /-1: there is no such value"},
        Case{"[1]", R"([{"op": "remove", "path": ""}])", "operation 0: remove : the whole cannot be removed"},
        Case{"3", R"([{"op": "add", "path": "/a", "value": 1}])", "operation 0: add /a: what is around it is no map or list"},
        Case{R"({"a": {}})", R"([{"op": "move", "from": "/a", "path": "/a/b"}])",
             "operation 0: move /a/b: a value cannot be moved into itself"},
        Case{R"({"a": {}})", R"([{"op": "move", "from": "/b", "path": "/b"}])", "operation 0: move /b: there is no such value"},
        Case{R"({"a": {}})", R"([{"op": "copy", "from": "/b", "path": "/c"}])", "operation 0: copy /c: there is no such value"},
        Case{R"({})", R"([{"op": "add", "path": "/a", "value": 1}, {"op": "erase", "path": "/a"}])",
             "operation 1: erase /a: no such operation"},
        Case{R"({})", R"([{"op": "add", "path": "/a"}])", "operation 0: add /a: \"value\" is missing"},
        Case{R"({})", R"([{"op": "add", "value": 1}])", "operation 0: \"path\" is missing"},
        Case{R"({})", R"([{"op": "add", "path": 1, "value": 1}])", "operation 0: \"path\" is no text"},
        Case{R"({})", R"([{"path": "/a", "value": 1}])", "operation 0: \"op\" is missing"},
        Case{R"({})", R"([{"op": "move", "path": "/a"}])", "operation 0: move /a: \"from\" is missing"},
        Case{R"({})", R"([{"op": "add", "path": "a", "value": 1}])",
             "operation 0: add a: a path begins with \"/\" or is empty"},
        Case{R"({})", R"([{"op": "add", "path": "/a~2", "value": 1}])",
             "operation 0: add /a~2: \"~\" stands before \"0\" or \"1\" alone"},
        Case{R"({})", R"([{"op": "add", "path": "/a~", "value": 1}])",
             "operation 0: add /a~: \"~\" stands before \"0\" or \"1\" alone"},
        Case{R"({})", R"([3])", "operation 0: \"op\" is missing"},
        Case{R"({})", R"({"op": "add"})", "operation 0: a patch is a list of operations"}));

// Each copy may double the tree.
TEST(JsonPatch, CopiesNoMoreThanIsAllowed)
{
    PropertyTree patch;
    for (int count = 0; count != 40; ++count)
    {
        patch.append(ReadJson(R"({"op": "copy", "from": "", "path": "/-"})"));
    }
    PropertyTree tree = ReadJson("[1]");
    EXPECT_THROW(ApplyJsonPatch(patch, tree, {.maxCopied = 100000}), JsonPatchError);
    EXPECT_EQ(tree, ReadJson("[1]"));
    patch.getList().resize(3); // which copy 2, 4 and 8 values
    EXPECT_THROW(ApplyJsonPatch(patch, tree, {.maxCopied = 13}), JsonPatchError);
    ApplyJsonPatch(patch, tree, {.maxCopied = 14});
    EXPECT_EQ(WriteJson(tree), "[1,[1],[1,[1]],[1,[1],[1,[1]]]]");
}

TEST(JsonPatch, SaysWhichOperation)
{
    PropertyTree tree = ReadJson("{}");
    try
    {
        ApplyJsonPatch(ReadJson(R"([{"op": "add", "path": "/a", "value": 1}, {"op": "remove", "path": "/b"}])"), tree);
        FAIL();
    }
    catch (const JsonPatchError& error)
    {
        EXPECT_EQ(error.Operation(), 1u);
    }
}

struct Pair
{
    const char* before;
    const char* after;
    const char* patch;
};

void PrintTo(const Pair& one, std::ostream* out)
{
    *out << one.before << " to " << one.after;
}

class PatchFrom : public testing::TestWithParam<Pair>
{
};

TEST_P(PatchFrom, IsThis)
{
    const PropertyTree before = ReadJson(GetParam().before);
    const ChangeList changes = Diff(before, ReadJson(GetParam().after));
    const PropertyTree patch = ToJsonPatch(changes);
    EXPECT_EQ(WriteJson(patch), GetParam().patch);
    PropertyTree one = before;
    PropertyTree other = before;
    ApplyJsonPatch(patch, one);
    Apply(changes, other);
    EXPECT_EQ(one, other);
}

INSTANTIATE_TEST_SUITE_P(
    Changes, PatchFrom,
    testing::Values(
        Pair{R"({"name": "EFFECT_ACID", "radius": 2})", R"({"name": "EFFECT_ACID", "radius": 3})",
             R"([{"op":"test","path":"/radius","value":2},{"op":"replace","path":"/radius","value":3}])"},
        Pair{R"({"name": "EFFECT_ACID", "radius": 2})", R"({"name": "EFFECT_ACID"})",
             R"([{"op":"test","path":"/radius","value":2},{"op":"remove","path":"/radius"}])"},
        Pair{R"({"name": "EFFECT_ACID"})", R"({"name": "EFFECT_ACID", "radius": 2})",
             R"([{"op":"add","path":"/radius","value":2}])"},
        // A record that is not stored has other values by default than one that is stored without a key.
        Pair{
            R"({"name": "EFFECT_ACID"})", R"({"name": "EFFECT_ACID", "helperSettings": {"maxWidth": 9, "undoSet": true}})",
            R"([{"op":"add","path":"/helperSettings","value":{"applyMode":[],"maxHeight":4294967295,"maxWidth":9,"undoSet":false}},)"
            R"({"op":"test","path":"/helperSettings/undoSet","value":false},)"
            R"({"op":"replace","path":"/helperSettings/undoSet","value":true}])"},
        Pair{R"([{"name": "EFFECT_ACID"}, {"name": "EFFECT_EMPTY"}, {"name": "EFFECT_SEPIA"}])",
             R"([{"name": "EFFECT_EMPTY"}, {"name": "EFFECT_ACID"}])",
             R"([{"op":"test","path":"/2","value":{"name":"EFFECT_SEPIA"}},{"op":"remove","path":"/2"},)"
             R"({"op":"test","path":"/1","value":{"name":"EFFECT_EMPTY"}},{"from":"/1","op":"move","path":"/0"}])"},
        Pair{R"([])", R"([{"name": "EFFECT_ACID"}])", R"([{"op":"add","path":"/0","value":{"name":"EFFECT_ACID"}}])"},
        Pair{R"({"name": "EFFECT_X", "a/b~": 1})", R"({"name": "EFFECT_X", "a/b~": 2})",
             R"([{"op":"test","path":"/a~1b~0","value":1},{"op":"replace","path":"/a~1b~0","value":2}])"},
        Pair{R"({"name": "EFFECT_X", "": 1})", R"({"name": "EFFECT_X"})",
             R"([{"op":"test","path":"/","value":1},{"op":"remove","path":"/"}])"}));

} // namespace
