#include "Proc/EffectSettings/EffectSettings.h"
#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "Proc/EffectSettings/ResizeSettings.h"
#include "PropertyTree/PropertyTreeOutput.h" // shows a tree in a failed expectation
#include "PropertyTreeJson/PropertyTreeJson.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

// What docs/stored-form.md says about single effects.
namespace
{

using Ombrel::PropertyTree;
using Ombrel::ReadJson;
using Ombrel::WriteJson;
using Ombrel::Proc::SettingsResizer;
using namespace Ombrel::PhotoCore;

std::string StoredForm()
{
    std::ifstream file(OMBREL_STORED_FORM, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// A new effect of the class, also of one that is not registered.
std::shared_ptr<IEffectSettings> NewEffect(const PropertyTree& tree)
{
    const std::string& classId = tree["name"].getScalar().toString();
    const auto classes = EffectClasses();
    const auto found =
        std::ranges::find(classes, classId, [](const EffectClass& effectClass) { return std::string(effectClass.classId); });
    return found == classes.end() ? nullptr : found->create();
}

std::string Written(const std::shared_ptr<IEffectSettings>& effect)
{
    PropertyTree tree;
    EffectSettings::SerializePtr(tree, effect);
    return WriteJson(tree);
}

using Row = std::pair<PropertyTree, PropertyTree>;

// The rows of the table: two JSON texts, each as code.
std::vector<Row> RowsOfTheTable()
{
    std::vector<Row> rows;
    std::istringstream lines(StoredForm());
    for (std::string line; std::getline(lines, line);)
    {
        const std::string between = "` | `";
        const std::size_t middle = line.find(between);
        if (line.starts_with("| `{") && middle != std::string::npos)
        {
            const std::size_t second = middle + between.size();
            rows.emplace_back(ReadJson(line.substr(3, middle - 3)), ReadJson(line.substr(second, line.size() - 3 - second)));
        }
    }
    return rows;
}

TEST(StoredForm, EffectsAreWrittenAsItsTableSays)
{
    const std::vector<Row> rows = RowsOfTheTable();
    EXPECT_EQ(rows.size(), 14u);
    for (const auto& [read, written] : rows)
    {
        const std::shared_ptr<IEffectSettings> effect = NewEffect(read);
        ASSERT_TRUE(effect) << WriteJson(read);
        effect->Deserialize(read);
        EXPECT_EQ(Written(effect), WriteJson(written)) << WriteJson(read);
        EXPECT_NE(read, written);
    }
}

TEST(StoredForm, EveryEffectOfTheTableIsExplained)
{
    const std::string text = StoredForm();
    const std::string list = text.substr(text.find("\n- **Oil paint"));
    for (const auto& [read, written] : RowsOfTheTable())
    {
        const std::string& classId = read["name"].getScalar().toString();
        const bool isNested = classId == "EFFECT_ADJUSTER" || classId == "EFFECT_TEXTURE";
        EXPECT_TRUE(isNested || list.find('"' + classId + '"') != std::string::npos) << classId;
    }
}

// [resize]
void RestoreFrame(ResizeSettings& resize, const PropertyTree& tree, SettingsResizer::CustomModes mode)
{
    SettingsResizer& resizer = resize.GetTypedSettings();
    resizer.SetCustomMode(mode, {});
    resize.Deserialize(tree);                            // now the frame reaches the resizer, with the mode Stretch
    resizer.SetCustomMode(mode, resizer.GetFrameInfo()); // so the mode is set again
}

void RestoreScale(ResizeSettings& resize, const PropertyTree& tree)
{
    resize.GetTypedSettings().SetCustomScale(1.0);
    resize.Deserialize(tree); // now the scale factor reaches the resizer
}
// [/resize]

TEST(StoredForm, ResizeFromTheRegistryHasNoSize)
{
    const char* text =
        R"({"frameInfo":{"ax":4,"ay":3,"height":600,"width":800},"name":"EFFECT_RESIZE","scaleFactor":0.5,"uom":"cm"})";
    std::shared_ptr<IEffectSettings> effect;
    EffectSettings::DeserializePtr(ReadJson(text), effect);
    const auto& record = dynamic_cast<const SettingsResizer&>(effect->GetEffectSettings());
    EXPECT_EQ(record.GetSizeMode(), SettingsResizer::SizeModes::Original);
    EXPECT_TRUE(record.IsEmpty());
    EXPECT_EQ(Written(effect), text);
}

TEST(StoredForm, ResizeGetsItsSizeInTheMatchingMode)
{
    const Ombrel::Conf::FrameInfo frame{800, 600, 4, 3};
    ResizeSettings original;
    original.GetTypedSettings().SetCustomMode(SettingsResizer::CustomModes::Fit, frame);
    PropertyTree tree;
    original.Serialize(tree);

    ResizeSettings alone;
    alone.GetTypedSettings().SetCustomMode(SettingsResizer::CustomModes::Fit, {});
    alone.Deserialize(tree);
    EXPECT_EQ(alone.GetTypedSettings().GetFrameInfo(), frame);
    EXPECT_EQ(alone.GetTypedSettings().GetCustomMode(), SettingsResizer::CustomModes::Stretch);

    ResizeSettings restored;
    RestoreFrame(restored, tree, SettingsResizer::CustomModes::Fit);
    EXPECT_TRUE(restored == original);

    original.GetTypedSettings().SetCustomScale(0.5);
    original.Serialize(tree);
    ResizeSettings scaled;
    RestoreScale(scaled, tree);
    EXPECT_EQ(scaled.GetTypedSettings().GetSizeMode(), SettingsResizer::SizeModes::CustomScale);
    EXPECT_EQ(scaled.GetTypedSettings().GetScaleFactor(), 0.5);
}

std::string ReadTwice(const char* first, const char* second)
{
    std::shared_ptr<IEffectSettings> effect;
    EffectSettings::DeserializePtr(ReadJson(first), effect);
    effect->Deserialize(ReadJson(second));
    return Written(effect);
}

TEST(StoredForm, RequiredFormatsAreAdded)
{
    const char* tree = R"({"name":"EFFECT_COLORSPACE_CONVERTER","requiredFormats":["RGB24"]})";
    EXPECT_EQ(ReadTwice(tree, "{}"), tree);
    EXPECT_EQ(ReadTwice(tree, tree), R"({"name":"EFFECT_COLORSPACE_CONVERTER","requiredFormats":["RGB24","RGB24"]})");

    std::shared_ptr<IEffectSettings> effect;
    EffectSettings::DeserializePtr(ReadJson(tree), effect);
    effect->GetPropertyAccess()->SetProperty("requiredFormats", ReadJson(R"(["BGRA"])"));
    EXPECT_EQ(Written(effect), R"({"name":"EFFECT_COLORSPACE_CONVERTER","requiredFormats":["RGB24","BGRA"]})");
}

TEST(StoredForm, ColoursOfAGradientAreAdded)
{
    const char* tree = R"({"gradient":[{"key":1,"value":"ff0000ff"}],"name":"EFFECT_GRADIENT"})";
    EXPECT_EQ(ReadTwice(tree, R"({"gradient":[]})"), tree);
    EXPECT_EQ(ReadTwice(tree, R"({"gradient":[{"key":1,"value":"00ff00ff"},{"key":2,"value":"00ff00ff"}]})"),
              R"({"gradient":[{"key":1,"value":"00ff00ff"},{"key":2,"value":"00ff00ff"}],"name":"EFFECT_GRADIENT"})");
    EXPECT_EQ(ReadTwice(tree, "{}"), R"({"name":"EFFECT_GRADIENT"})");
}

} // namespace
