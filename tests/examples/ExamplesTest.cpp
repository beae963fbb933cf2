#include "Proc/EffectSettings/EffectSettings.h"
#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "PropertyTreeJson/PropertyTreeJson.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>

// The stored effects beside the code come back as they stand, and where they do not, as is told of them.
namespace
{

using namespace Ombrel::PhotoCore;
using Ombrel::PropertyTree;

const std::filesystem::path EXAMPLES = OMBREL_EXAMPLES;
const std::filesystem::path EFFECTS = EXAMPLES / "effects";

std::string TextOf(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST(Examples, EveryRegisteredClassHasOneThatComesBack)
{
    std::size_t count = 0;
    for (const EffectClass& effectClass : EffectClasses())
    {
        if (effectClass.registration == Registration::None)
        {
            continue;
        }
        ++count;
        const std::string text = TextOf(EFFECTS / (std::string(effectClass.classId) + ".json"));
        ASSERT_FALSE(text.empty()) << effectClass.classId;
        const PropertyTree stored = Ombrel::ReadJson(text);
        EXPECT_EQ(stored["name"], PropertyTree(effectClass.classId));
        std::shared_ptr<IEffectSettings> effect;
        EffectSettings::DeserializePtr(stored, effect);
        const auto access = effect->GetPropertyAccess();
        if (access && !access->ListProperties().empty())
        {
            EXPECT_GT(stored.getMap().size(), 1u) << effectClass.classId << " shows nothing but its name";
        }
        PropertyTree written;
        EffectSettings::SerializePtr(written, effect);
        EXPECT_EQ(written, stored) << effectClass.classId;
        EXPECT_EQ(Ombrel::WriteJson(written, {.indent = 4}) + "\n", text) << effectClass.classId;
    }
    const auto files = std::distance(std::filesystem::directory_iterator(EFFECTS), {});
    EXPECT_EQ(static_cast<std::size_t>(files), count) << "there are files of no registered class";
}

// What comes of a stored list that is read and written again.
PropertyTree WrittenBack(const PropertyTree& list)
{
    PropertyTree written;
    written.convertToList();
    for (const PropertyTree& element : list.getList())
    {
        std::shared_ptr<IEffectSettings> effect;
        EffectSettings::DeserializePtr(element, effect);
        written.append({});
        EffectSettings::SerializePtr(written.getList().back(), effect);
    }
    return written;
}

TEST(Examples, TheListsOfTheDemoComeBack)
{
    for (const char* list : {"portrait.json", "landscape.json", "batch.json", "packages.json"})
    {
        const std::string text = TextOf(EXAMPLES / list);
        EXPECT_EQ(Ombrel::WriteJson(WrittenBack(Ombrel::ReadJson(text)), {.indent = 2}) + "\n", text) << list;
    }
}

TEST(Examples, APackageStandsInAPackage)
{
    const PropertyTree list = Ombrel::ReadJson(TextOf(EXAMPLES / "packages.json"));
    const PropertyTree& tile = list.getList()[0];
    EXPECT_EQ(tile["name"], PropertyTree("effectSettingsTileStub"));
    const PropertyTree& brush = tile["effectRows"].getList()[1]["cols"].getList()[0].getList()[0];
    EXPECT_EQ(brush["name"], PropertyTree("EffectsPackageOneInputWithBrush"));
    const PropertyTree& faces = brush["foregroundEffects"].getList()[0];
    EXPECT_EQ(faces["name"], PropertyTree("SettingsEffectFacePackage"));
    EXPECT_EQ(faces["facesEffects"].getList()[0]["effect"]["name"], PropertyTree("EFFECT_SMART_BLUR"));
}

TEST(Examples, TheChangingListChangesAsIsTold)
{
    const PropertyTree written = WrittenBack(Ombrel::ReadJson(TextOf(EXAMPLES / "changing.json")));
    EXPECT_EQ(Ombrel::WriteJson(written),
              R"([{"intensity":0.5,"name":"EFFECT_OIL_PAINT","radius":5},)"
              R"({"grain":20,"intensity":0.5,"name":"EFFECT_RETRO_ARTEFACTS","rollerTrack":3,"scratches":4,"shake":true},)"
              R"({"deviation":1.0,"intensity":0.5,"name":"EFFECT_FISH_EYE"}])");
}

} // namespace
