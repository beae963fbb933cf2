#include "PropertyTreeJson/PropertyTreeJson.h"
#include "release/Rules.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

// The rules themselves: what breaks a release is found, and what does not is let pass.
namespace
{

using namespace Release;
using Ombrel::PropertyTree;

PropertyTree Tree(const std::string& json)
{
    return Ombrel::ReadJson(json);
}

// A release with one of everything.
PropertyTree Manifest()
{
    return Tree(R"({"release":"1.0","classes":[
        {"id":"EFFECT_A","class":"ASettings","inputs":"1","registered":true,"keys":[
            {"key":"radius","kind":"int32","default":5,"compared":true},
            {"key":"mode","kind":"name","default":"Red","fallback":0,"takesNumbers":true,"names":[
                {"name":"Red","number":0},{"name":"Green","number":1},{"name":"Lime","number":1}]},
            {"key":"inner","kind":"record","record":"Inner","default":{"x":1,"y":2}},
            {"key":"points","kind":"list","default":[],"element":{"kind":"record","record":"Inner"}}]},
        {"id":"EFFECT_B","class":"BSettings","inputs":"2","registered":false,"keys":[]}],
        "records":{"Inner":[{"key":"x","kind":"float64","default":1},{"key":"y","kind":"float64","default":0}]}})");
}

PropertyTree& Class(PropertyTree& manifest, std::size_t number)
{
    return manifest["classes"].getList()[number];
}

PropertyTree& Field(PropertyTree& manifest, std::size_t number)
{
    return Class(manifest, 0)["keys"].getList()[number];
}

PropertyTree& Name(PropertyTree& manifest, std::size_t number)
{
    return Field(manifest, 1)["names"].getList()[number];
}

PropertyTree& Inner(PropertyTree& manifest, std::size_t number)
{
    return manifest["records"]["Inner"].getList()[number];
}

void Erase(PropertyTree& list, std::size_t number)
{
    list.getList().erase(list.getList().begin() + static_cast<std::ptrdiff_t>(number));
}

std::vector<std::string> Ids(const std::vector<Break>& breaks)
{
    std::vector<std::string> ids;
    for (const Break& change : breaks)
    {
        ids.push_back(change.Id());
    }
    return ids;
}

struct Attempt
{
    std::vector<std::string> found;
    std::function<void(PropertyTree&)> change;
};

TEST(ReleaseRules, FindEachBreak)
{
    using Map = PropertyTree;
    const std::vector<Attempt> attempts{
        {{"class-removed EFFECT_B: BSettings"}, [](Map& m) { Erase(m["classes"], 1); }},
        {{"class-renamed EFFECT_A: \"ASettings\" -> \"CSettings\""}, [](Map& m) { Class(m, 0)["class"] = "CSettings"; }},
        {{"inputs-changed EFFECT_B: \"2\" -> \"var\""}, [](Map& m) { Class(m, 1)["inputs"] = "var"; }},
        {{"registration-removed EFFECT_A: registered -> not registered"}, [](Map& m) { Class(m, 0)["registered"] = false; }},
        {{"key-removed EFFECT_A/radius: kind int32"}, [](Map& m) { Erase(Class(m, 0)["keys"], 0); }},
        {{"key-removed EFFECT_A/radius: kind int32"}, [](Map& m) { Field(m, 0)["key"] = "Radius"; }}, // renamed
        {{"key-removed EFFECT_A/inner/x: kind float64", "key-removed EFFECT_A/points/0/x: kind float64"},
         [](Map& m) { Erase(m["records"]["Inner"], 0); }},
        {{"kind-changed EFFECT_A/radius: int32 -> uint8"}, [](Map& m) { Field(m, 0)["kind"] = "uint8"; }}, // narrowed
        {{"kind-changed EFFECT_A/inner/x: float64 -> float32", "kind-changed EFFECT_A/points/0/x: float64 -> float32"},
         [](Map& m) { Inner(m, 0)["kind"] = "float32"; }},
        {{"default-changed EFFECT_A/radius: 5 -> 6"}, [](Map& m) { Field(m, 0)["default"] = 6; }},
        {{"default-changed EFFECT_A/inner/y: 2 -> 3.0"}, [](Map& m) { Field(m, 2)["default"]["y"] = 3.0; }},
        {{"default-changed EFFECT_A/inner/y: 0 -> 3.0", "default-changed EFFECT_A/points/0/y: 0 -> 3.0"},
         [](Map& m) { Inner(m, 1)["default"] = 3.0; }},
        {{"order-changed EFFECT_A: the old keys are read in another order"}, [](Map& m) { Field(m, 0).swap(Field(m, 1)); }},
        {{"compared-changed EFFECT_A/radius: true -> not set"}, [](Map& m) { Field(m, 0).getMap().erase("compared"); }},
        {{"computed-changed EFFECT_A/radius: not set -> true"}, [](Map& m) { Field(m, 0)["computed"] = true; }},
        {{"always-written-changed EFFECT_A/inner: not set -> true"}, [](Map& m) { Field(m, 2)["alwaysWritten"] = true; }},
        {{"name-removed EFFECT_A/mode: \"Green\"", "name-moved EFFECT_A/mode: 1 is written as \"Lime\""},
         [](Map& m) { Erase(Field(m, 1)["names"], 1); }},
        {{"number-changed EFFECT_A/mode: \"Red\" 0 -> 7"}, [](Map& m) { Name(m, 0)["number"] = 7; }},
        {{"name-moved EFFECT_A/mode: 1 is written as \"Lime\"", "name-moved EFFECT_A/mode: 1 is written as \"Lime\""},
         [](Map& m) { Name(m, 1).swap(Name(m, 2)); }},
        {{"name-taken EFFECT_A/mode: \"Red\""},
         [](Map& m) { Field(m, 1)["names"].append(Tree(R"({"name":"Red","number":9})")); }},
        {{"fallback-changed EFFECT_A/mode: 0 -> 1"}, [](Map& m) { Field(m, 1)["fallback"] = 1; }},
        {{"numbers-not-taken EFFECT_A/mode: numbers -> no numbers"},
         [](Map& m) { Field(m, 1).getMap().erase("takesNumbers"); }},
    };
    for (const Attempt& attempt : attempts)
    {
        PropertyTree later = Manifest();
        attempt.change(later);
        const Comparison comparison = Compare(Manifest(), later);
        EXPECT_EQ(Ids(comparison.breaks), attempt.found);
    }
}

TEST(ReleaseRules, LetAdditionsPassAndListThem)
{
    PropertyTree later = Manifest();
    later["classes"].append(Tree(R"({"id":"EFFECT_C","class":"CSettings","inputs":"1","registered":true,"keys":[]})"));
    Class(later, 0)["keys"].append(Tree(R"({"key":"sigma","kind":"int32","default":0})"));
    Class(later, 1)["registered"] = true;
    Field(later, 1)["names"].append(Tree(R"({"name":"Blue","number":2})"));
    Field(later, 2)["default"]["z"] = 0;
    later["records"]["Inner"].append(Tree(R"({"key":"z","kind":"int32","default":0})"));
    const Comparison comparison = Compare(Manifest(), later);
    EXPECT_EQ(Ids(comparison.breaks), std::vector<std::string>());
    EXPECT_EQ(comparison.additions,
              (std::vector<std::string>{"name EFFECT_A/mode Blue", "key EFFECT_A/inner/z", "key EFFECT_A/points/0/z",
                                        "key EFFECT_A/sigma", "class EFFECT_C"}));
}

TEST(ReleaseRules, SayWhy)
{
    EXPECT_EQ((Break{"default-changed", "EFFECT_A/radius", "5 -> 6"}.Text()),
              "default-changed EFFECT_A/radius: 5 -> 6 (files without the key change their picture)");
}

PropertyTree Outcome()
{
    return Tree(R"({"full":{"radius":5,"inner":{"x":1}},"empty":[false,true],"written":{"name":"EFFECT_A","radius":5}})");
}

std::vector<std::string> Found(const std::function<void(PropertyTree&)>& change)
{
    PropertyTree found = Outcome();
    change(found);
    return Ids(CompareOutcomes("EFFECT_A", "radius", Outcome(), found));
}

TEST(ReleaseRules, FindWhatASampleNoLongerMeans)
{
    using Strings = std::vector<std::string>;
    EXPECT_EQ(Found([](PropertyTree&) {}), Strings());
    EXPECT_EQ(Found([](PropertyTree& found) { found["full"]["inner"]["new"] = 1; }), Strings());
    EXPECT_EQ(Found([](PropertyTree& found) { found["full"]["inner"]["x"] = 2; }),
              Strings{"sample-changed EFFECT_A/inner/x: radius: 1 -> 2"});
    EXPECT_EQ(Found([](PropertyTree& found) { found["full"].getMap().erase("radius"); }),
              Strings{"sample-changed EFFECT_A/radius: radius: 5 -> null"});
    EXPECT_EQ(Found([](PropertyTree& found) { found["written"]["new"] = 1; }),
              Strings{"sample-changed EFFECT_A/new: radius, written: null -> 1"});
    EXPECT_EQ(Found([](PropertyTree& found) { found["written"]["radius"] = 6; }),
              Strings{"sample-changed EFFECT_A/radius: radius, written: 5 -> 6"});
    EXPECT_EQ(Found([](PropertyTree& found) { found["empty"].getList()[1] = false; }),
              Strings{"sample-changed EFFECT_A: radius, IsEmpty of effect and record: [false,true] -> [false,false]"});
    EXPECT_EQ(Found([](PropertyTree& found) { found = Tree(R"({"refused":"no"})"); }),
              Strings{"sample-changed EFFECT_A: radius: read -> \"no\""});
}

TEST(ReleaseRules, LetWantedBreaksPassAndNoOther)
{
    WantedBreaks wanted("# Breaks\n\n- `1.0 default-changed EFFECT_A/radius: 5 -> 6` The old one was never shown.\n");
    EXPECT_EQ(wanted.Unused().size(), 1u);
    EXPECT_FALSE(wanted.IsWanted("1.0", {"default-changed", "EFFECT_A/radius", "5 -> 7"}));
    EXPECT_FALSE(wanted.IsWanted("0.9", {"default-changed", "EFFECT_A/radius", "5 -> 6"}));
    EXPECT_FALSE(wanted.IsWanted("1.0", {"default-changed", "EFFECT_A/inner", "5 -> 6"}));
    EXPECT_EQ(wanted.Unused().size(), 1u);
    EXPECT_TRUE(wanted.IsWanted("1.0", {"default-changed", "EFFECT_A/radius", "5 -> 6"}));
    EXPECT_TRUE(wanted.Unused().empty());
    // What samples show of it.
    EXPECT_TRUE(wanted.IsWanted("1.0", {"sample-changed", "EFFECT_A/radius", "default: 5 -> 6"}));
    EXPECT_TRUE(wanted.IsWanted("1.0", {"sample-changed", "EFFECT_A", "default, IsEmpty of effect and record: ..."}));
    EXPECT_FALSE(wanted.IsWanted("1.0", {"sample-changed", "EFFECT_A/mode", "default: 1 -> 2"}));
    EXPECT_FALSE(wanted.IsWanted("1.0", {"sample-changed", "EFFECT_B", "default: 1 -> 2"}));
    EXPECT_THROW(WantedBreaks("- `1.0 default-changed EFFECT_A/radius: 5 -> 6`\n"), std::runtime_error);
}

} // namespace
