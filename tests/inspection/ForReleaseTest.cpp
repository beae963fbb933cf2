#include "Findings.h"

#include "Inspection/Forms.h"
#include "Inspection/Release.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

// What a release that never was makes of trees of today: it lacks a class, keys and names, and has other defaults, fallbacks
// and kinds.
namespace
{

using namespace Ombrel;
using namespace Ombrel::Inspection;
using Support::CheckedLines;
using Support::LinesOf;

PropertyTree& ElementOf(PropertyTree& list, const char* key, const std::string& text)
{
    for (PropertyTree& element : list.getList())
    {
        if (element[key] == PropertyTree(text))
        {
            return element;
        }
    }
    throw std::logic_error("no " + text);
}

void Take(PropertyTree& list, const char* key, const std::string& text)
{
    PropertyTree* const element = &ElementOf(list, key, text);
    list.getList().erase(list.getList().begin() + (element - list.getList().data()));
}

std::shared_ptr<const Release> Earlier()
{
    static const auto release = []
    {
        PropertyTree manifest = Manifest("0.0");
        PropertyTree& classes = manifest["classes"];
        const auto keysOf = [&classes](const char* id) -> PropertyTree& { return ElementOf(classes, "id", id)["keys"]; };
        Take(classes, "id", "EFFECT_VIBRANCE");
        ElementOf(classes, "id", "EFFECT_CROP")["registered"] = false;
        Take(keysOf("EFFECT_ACID"), "key", "sigma");
        ElementOf(keysOf("EFFECT_ACID"), "key", "radius")["kind"] = "uint8";
        PropertyTree& radial = keysOf("EFFECT_BLUR_RADIAL");
        Take(ElementOf(radial, "key", "mode")["names"], "name", "Custom");
        ElementOf(radial, "key", "mode")["fallback"] = 1;
        ElementOf(radial, "key", "strength")["default"] = 0.5;
        ElementOf(radial, "key", "x")["kind"] = "float32";
        PropertyTree& adjuster = keysOf("EFFECT_ADJUSTER");
        ElementOf(adjuster, "key", "smartBlur")["default"]["lumaRadius"] = 70;
        Take(manifest["records"]["SettingsEffectSmartBlur"], "key", "chromaBlur");
        ElementOf(adjuster, "key", "hue")["kind"] = "text";
        // Another name for a value of today.
        PropertyTree& angle = ElementOf(keysOf("EFFECT_TRANSPOSE"), "key", "angle");
        ElementOf(angle["names"], "name", "Angle_180")["name"] = "UpsideDown";
        return std::make_shared<const Release>(manifest);
    }();
    return release;
}

std::string Lines(const char* json)
{
    return CheckedLines(json, {.release = Earlier()});
}

TEST(ForRelease, FindsAClassThatItLacks)
{
    EXPECT_EQ(Lines(R"([{"name": "EFFECT_VIBRANCE", "strength": "x"}])"), "error unknown-effect at 0/name\n");
    EXPECT_EQ(Lines(R"({"name": "EFFECT_CROP", "x": 3})"), "error not-registered at name\n");
    EXPECT_EQ(Lines(R"({"name": "EFFECT_NOTHING"})"), "error unknown-effect at name\n"); // to neither
    EXPECT_EQ(Lines(R"([{"name": "effectSettingsTileStub", "pre": [{"name": "EFFECT_VIBRANCE"}]}])"),
              "error unknown-effect at 0/pre/0/name\n");
}

TEST(ForRelease, FindsAKeyThatItLacks)
{
    EXPECT_EQ(Lines(R"({"name": "EFFECT_ACID", "sigma": 0.75})"), "warning unknown-key at sigma -> taken out\n");
    EXPECT_EQ(Lines(R"({"name": "EFFECT_ACID", "sigma": 0.5})"), ""); // which is the default, so nothing is lost
    EXPECT_EQ(Lines(R"({"name": "EFFECT_ACID", "nothing": 1})"), "warning unknown-key at nothing -> taken out\n"); // to neither
    EXPECT_EQ(Lines(R"({"name": "EFFECT_ADJUSTER", "smartBlur": {"lumaRadius": 1, "chromaBlur": 3}})"),
              "warning unknown-key at smartBlur/chromaBlur -> taken out\n");
    EXPECT_EQ(Lines(R"({"name": "EFFECT_ADJUSTER", "smartBlur": {"lumaRadius": 1, "chromaBlur": 0}})"), "");
}

TEST(ForRelease, FindsANameThatItLacks)
{
    EXPECT_EQ(Lines(R"({"name": "EFFECT_BLUR_RADIAL", "mode": "Custom", "strength": 1.0})"),
              "warning unknown-name at mode -> \"Linear\"\n");
    EXPECT_EQ(Lines(R"({"name": "EFFECT_BLUR_RADIAL", "mode": "Nothing", "strength": 1.0})"),
              "warning unknown-name at mode -> \"Linear\"\n"); // which is "Radial" here
    EXPECT_EQ(Lines(R"({"name": "EFFECT_TRANSPOSE", "angle": "Angle_180"})"),
              "warning unknown-name at angle -> \"NoRotation\"\n");
}

TEST(ForRelease, FindsAnotherDefault)
{
    EXPECT_EQ(Lines(R"({"name": "EFFECT_BLUR_RADIAL"})"), "warning other-default at strength\n");
    EXPECT_EQ(Lines(R"({"name": "EFFECT_BLUR_RADIAL", "strength": 0.0})"), "");
    const std::vector<Finding> found = Check(ReadJson(R"([{"name": "EFFECT_BLUR_RADIAL"}])"), {.release = Earlier()});
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].path.ToText(), "0/strength");
    EXPECT_EQ(found[0].message, "the key is missing: it reads as 0.0 here and as 0.5 in release 0.0");
    EXPECT_TRUE(found[0].found.isNull());
    EXPECT_TRUE(found[0].becomes == PropertyTree(0.5));
    // Of a whole record that is missing, and of a key in one that is there.
    EXPECT_EQ(Lines(R"({"name": "EFFECT_ADJUSTER"})"), "warning other-default at smartBlur\n");
    EXPECT_EQ(Lines(R"({"name": "EFFECT_ADJUSTER", "smartBlur": {}})"), "");
}

TEST(ForRelease, FindsAnotherKind)
{
    EXPECT_EQ(Lines(R"({"name": "EFFECT_ACID", "radius": 300})"), "warning cut-integer at radius -> 44\n");
    EXPECT_EQ(Lines(R"({"name": "EFFECT_BLUR_RADIAL", "strength": 1.0, "x": 0.1})"),
              "warning narrowed-float at x -> 0.10000000149011612\n");
    EXPECT_EQ(Lines(R"({"name": "EFFECT_ADJUSTER", "smartBlur": {}, "hue": 1.0})"), "error wrong-kind at hue -> taken out\n");
}

// What the releases have in common is found as without one.
TEST(ForRelease, FindsWhatTheLibraryFindsItself)
{
    EXPECT_EQ(Lines("null"), "note null-effect at \n");
    EXPECT_EQ(Lines("3"), "error not-an-effect at \n");
    EXPECT_EQ(Lines("{}"), "error no-name at \n");
    EXPECT_EQ(Lines(R"({"name": "EFFECT_GRADIENT", "gradient": 3})"), "warning ignored-value at gradient -> taken out\n");
    EXPECT_EQ(Lines(R"({"name": "EFFECT_GRADIENT", "gradient": [{"key": 3}]})"),
              "error wrong-kind at gradient/0 -> taken out\n");
    EXPECT_EQ(Lines(R"({"name": "EFFECT_BLUR_RADIAL", "strength": 1.0, "trace": [{"x": "a"}]})"),
              "error wrong-kind at trace/0/x -> taken out\n");
    EXPECT_EQ(Lines(R"({"name": "EFFECT_BLUR_RADIAL", "strength": 1.0, "trace": {}})"),
              "warning ignored-value at trace -> taken out\n");
    EXPECT_EQ(Lines(R"({"name": "EFFECT_FISH_EYE", "intensity": 3.0, "deviation": 2.0})"),
              CheckedLines(R"({"name": "EFFECT_FISH_EYE", "intensity": 3.0, "deviation": 2.0})"));
    EXPECT_EQ(Lines(R"({"name": "effectSettingsTileStub", "effectRows": [{"cols": [[]]}, {"cols": [[], []]}]})"),
              CheckedLines(R"({"name": "effectSettingsTileStub", "effectRows": [{"cols": [[]]}, {"cols": [[], []]}]})"));
    EXPECT_EQ(Lines(R"({"name": "EFFECT_ACID", "helperSettings": {"maxWidth": "x"}, "implName": 3})"),
              "error wrong-kind at implName -> taken out\nerror wrong-kind at helperSettings/maxWidth -> taken out\n");
}

TEST(ForRelease, EndsAtTheMostFindings)
{
    const PropertyTree tree = ReadJson(R"([{"name": "EFFECT_VIBRANCE"}, {"name": "EFFECT_VIBRANCE"}])");
    EXPECT_EQ(Check(tree, {.maxFindings = 1, .release = Earlier()}).size(), 1u);
}

struct ConversionCase
{
    const char* json;
    const char* converted;
    const char* losses;
};

TEST(ConvertedFor, WritesWhatTheReleaseReadsToTheSameValues)
{
    const ConversionCase cases[]{
        {R"({"name": "EFFECT_BLUR_RADIAL"})", R"({"name":"EFFECT_BLUR_RADIAL","strength":0.0})", ""},
        {R"({"name": "EFFECT_ADJUSTER"})",
         R"({"name":"EFFECT_ADJUSTER","smartBlur":{"chromaRadius":100,"chromaSharpen":0,"chromaThreshold":0,"lumaBlur":0,)"
         R"("lumaRadius":100,"lumaSharpen":0,"lumaThreshold":0}})",
         ""},
        {R"([{"name": "EFFECT_ACID", "sigma": 0.5}, {"name": "EFFECT_ACID", "sigma": 0.75}])",
         R"([{"name":"EFFECT_ACID"},{"name":"EFFECT_ACID","sigma":0.75}])", "warning unknown-key at 1/sigma -> taken out\n"},
        {R"({"name": "EFFECT_TRANSPOSE", "angle": "Angle_180"})", R"({"angle":"Angle_180","name":"EFFECT_TRANSPOSE"})",
         "warning unknown-name at angle -> \"NoRotation\"\n"}, // this library does not know the other name
        {R"({"name": "EFFECT_BLUR_RADIAL", "mode": "Nothing", "strength": 1.0})",
         R"({"mode":"Radial","name":"EFFECT_BLUR_RADIAL","strength":1.0})", ""},
        {R"({"name": "EFFECT_BLUR_RADIAL", "mode": "Custom", "strength": 1.0})",
         R"({"mode":"Custom","name":"EFFECT_BLUR_RADIAL","strength":1.0})", "warning unknown-name at mode -> \"Linear\"\n"},
        {R"([{"name": "effectSettingsTileStub", "pre": [{"name": "EFFECT_BLUR_RADIAL"}, null]}])",
         R"([{"name":"effectSettingsTileStub","pre":[{"name":"EFFECT_BLUR_RADIAL","strength":0.0},null]}])", ""},
        {R"({"name": "EFFECT_VIBRANCE"})", R"({"name":"EFFECT_VIBRANCE"})", "error unknown-effect at name\n"},
        {R"({"name": "EFFECT_ACID", "radius": 300, "x": 1})", R"({"name":"EFFECT_ACID","radius":300,"x":1})",
         "warning cut-integer at radius -> 44\n"}, // "x" is lost here as well
        {R"({"name": "EFFECT_NOTHING", "x": 1})", R"({"name":"EFFECT_NOTHING","x":1})", "error unknown-effect at name\n"},
        {"3", "3", "error not-an-effect at \n"},
    };
    for (const ConversionCase& one : cases)
    {
        const PropertyTree given = ReadJson(one.json);
        const Conversion conversion = ConvertedFor(*Earlier(), given);
        EXPECT_EQ(WriteJson(conversion.tree), one.converted);
        EXPECT_EQ(LinesOf(conversion.losses), one.losses) << one.json;
        if (std::string(one.json).find("Nothing") == std::string::npos)
        {
            EXPECT_EQ(WriteJson(Freeze(conversion.tree)), WriteJson(Freeze(given)));
        }
    }
}

// A default that the release cannot read is not put in.
TEST(ConvertedFor, PutsInNoDefaultThatIsRefused)
{
    PropertyTree manifest = Manifest("0.0");
    PropertyTree& smooth = ElementOf(ElementOf(manifest["classes"], "id", "EFFECT_ADJUSTER")["keys"], "key", "smartBlur");
    smooth["default"]["lumaRadius"] = 70;
    ElementOf(manifest["records"]["SettingsEffectSmartBlur"], "key", "lumaRadius")["kind"] = "text";
    const Release release(manifest);
    const Conversion conversion = ConvertedFor(release, ReadJson(R"({"name": "EFFECT_ADJUSTER"})"));
    EXPECT_EQ(WriteJson(conversion.tree), R"({"name":"EFFECT_ADJUSTER"})");
    EXPECT_EQ(LinesOf(conversion.losses), "warning other-default at smartBlur\n");
}

TEST(ForRelease, KnowsTheFrozenReleases)
{
    ASSERT_FALSE(ReleaseNames().empty());
    EXPECT_EQ(ReleaseNames().front(), "0.1");
    EXPECT_EQ(ReadRelease("0.1")->Name(), "0.1");
    EXPECT_EQ(ForRelease("0.1").release->Name(), "0.1");
    EXPECT_THROW(ReadRelease("0.1.0"), std::invalid_argument);
    EXPECT_THROW(ForRelease(""), std::invalid_argument);
    EXPECT_EQ(CheckedLines(R"([{"name": "EFFECT_VIBRANCE", "strength": 3, "x": 1}])", ForRelease("0.1")),
              "warning unknown-key at 0/x -> taken out\n");
}

// A release that reads all that this one does.
TEST(ForRelease, OfThisBuildFindsNothingInWhatIsWritten)
{
    const auto today = std::make_shared<const Release>(Manifest("today"));
    for (const char* json : {R"([{"name": "EFFECT_ADJUSTER", "smartBlur": {"lumaRadius": 3}}, {"name": "EFFECT_GRADIENT"}])",
                             R"({"name": "effectSettingsTileStub", "pre": [{"name": "EFFECT_VIBRANCE", "strength": 7}]})"})
    {
        EXPECT_EQ(CheckedLines(json, {.release = today}), "");
        EXPECT_EQ(WriteJson(ConvertedFor(*today, ReadJson(json)).tree), WriteJson(ReadJson(json)));
    }
}

TEST(Release, RefusesWhatIsNoManifest)
{
    const auto messageOf = [](const char* json)
    {
        try
        {
            const Release release(ReadJson(json));
        }
        catch (const std::invalid_argument& failure)
        {
            return std::string(failure.what());
        }
        return std::string("none");
    };
    EXPECT_EQ(messageOf("null"), "no manifest of a release: \"release\" is missing");
    EXPECT_EQ(messageOf(R"({"release": 1})"), "no manifest of a release: \"release\" is no text");
    EXPECT_EQ(messageOf(R"({"release": "1", "records": []})"), "no manifest of a release: \"records\" is no map");
    EXPECT_EQ(messageOf(R"({"release": "1", "records": {}, "classes": {}})"),
              "no manifest of a release: \"classes\" is no list");
    EXPECT_EQ(messageOf(R"({"release": "1", "records": {"A": [{"key": "a", "kind": "b"}]}, "classes": []})"),
              "no manifest of a release: \"b\" is no kind");
    EXPECT_EQ(
        messageOf(R"({"release": "1", "records": {"A": [{"key": "a", "kind": "record", "record": "B"}]}, "classes": []})"),
        "no manifest of a release: there is no record \"B\"");
    EXPECT_EQ(messageOf(R"({"release": "1", "records": {"A": [{"key": "a", "kind": "list"}]}, "classes": []})"),
              "no manifest of a release: \"element\" is missing");
    EXPECT_EQ(messageOf(R"({"release": "1", "records": {"A": [{"key": "a", "kind": "name", "names": [{"name": "x",
                            "number": "y"}], "fallback": 0}]}, "classes": []})"),
              "no manifest of a release: \"number\" is no number");
    EXPECT_EQ(messageOf(R"({"release": "1", "records": {}, "classes": []})"), "none");
    std::string deep = R"("kind": "int32"})";
    for (int level = 0; level != 100; ++level)
    {
        deep = R"("kind": "list", "element": {)" + deep + "}";
    }
    EXPECT_EQ(
        messageOf(
            (R"({"release": "1", "records": {"A": [{"key": "a", "default": [], )" + deep + R"(]}, "classes": []})").c_str()),
        "no manifest of a release: too many lists stand in each other");
}

} // namespace
