#include "Inspection/StoredEffects.h"

#include "Proc/EffectSettings/AcidSettings.h"
#include "Proc/EffectSettings/EffectSettings.h"
#include "Proc/EffectSettings/EffectsPackageWithBrushSettings.h"
#include "Proc/EffectSettings/FacePackageSettings.h"
#include "Proc/EffectSettings/TileSettings.h"
#include "Proc/EffectSettings/VibranceSettings.h"
#include "PropertyTreeJson/PropertyTreeJson.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

// Effects in lists, of effects and of the caller's. In the texts here A, B and C are effects of three classes, a lower-case
// letter one of the same class that holds another value, U and V effects that are not known, and a digit behind a letter an
// unknown key.
namespace
{

using namespace Ombrel;
using namespace Ombrel::Inspection;
using PhotoCore::IEffectSettings;

PropertyTree EffectOf(char letter)
{
    PropertyTree effect;
    switch (letter)
    {
    case 'A':
    case 'a':
        effect["name"] = "EFFECT_ACID";
        effect["radius"] = letter == 'A' ? 1 : 2;
        break;
    case 'B':
    case 'b':
        effect["name"] = "EFFECT_VIBRANCE";
        effect["strength"] = letter == 'B' ? 1 : 2;
        break;
    case 'C':
    case 'c':
        effect["name"] = "EFFECT_PIXELATE";
        effect["strength"] = letter == 'C' ? 1.5 : 2.5;
        break;
    default:
        effect["name"] = std::string(1, letter);
    }
    return effect;
}

PropertyTree ListOf(std::string_view text)
{
    PropertyTree list;
    list.makeList();
    for (const char letter : text)
    {
        if (letter >= '0' && letter <= '9')
        {
            list.getList().back()["later"] = letter - '0';
        }
        else
        {
            list.append(EffectOf(letter));
        }
    }
    return list;
}

std::string TextOf(const PropertyTree& list)
{
    std::string text;
    for (const PropertyTree& element : list.getList())
    {
        PropertyTree effect = element;
        effect.getMap().erase("later");
        for (const char letter : std::string_view("AaBbCcUVWXYZ"))
        {
            if (effect == EffectOf(letter))
            {
                text += letter;
            }
        }
        if (element.contains("later"))
        {
            text += std::to_string(element["later"].getScalar().toInt());
        }
    }
    return text;
}

struct Case
{
    const char* before;
    const char* now; // of those that are known
    const char* after;
};

void PrintTo(const Case& one, std::ostream* out)
{
    *out << one.before << " " << one.now;
}

class ListInAnEffect : public testing::TestWithParam<Case>
{
};

IEffectSettings::List EffectsOf(std::string_view text)
{
    IEffectSettings::List effects;
    const PropertyTree list = ListOf(text);
    for (const PropertyTree& tree : list.getList())
    {
        PhotoCore::EffectSettings::DeserializePtr(tree, effects.emplace_back());
    }
    return effects;
}

// The list is replaced as a whole by other objects.
TEST_P(ListInAnEffect, KeepsWhatIsNotKnown)
{
    PropertyTree tile;
    tile["name"] = "effectSettingsTileStub";
    tile["pre"] = ListOf(GetParam().before);
    StoredEffects stored;
    stored.Load(tile);
    dynamic_cast<PhotoCore::TileSettings&>(*stored.Effect(0)).Pre() = EffectsOf(GetParam().now);
    const PropertyTree saved = stored.Save();
    EXPECT_EQ(saved.contains("pre") ? TextOf(saved["pre"]) : "", GetParam().after);
}

// The same, five levels deeper.
TEST_P(ListInAnEffect, KeepsWhatIsNotKnownAtAnyDepth)
{
    PropertyTree tree;
    tree["name"] = "effectSettingsTileStub";
    tree["pre"] = ListOf(GetParam().before);
    for (int level = 0; level != 5; ++level)
    {
        PropertyTree outer;
        outer["name"] = "effectSettingsTileStub";
        outer["pre"] = ListOf("U");
        outer["pre"].append(std::move(tree));
        tree = std::move(outer);
    }
    StoredEffects stored;
    stored.Load(tree);
    std::shared_ptr<IEffectSettings> effect = stored.Effect(0);
    for (int level = 0; level != 5; ++level)
    {
        effect = std::shared_ptr<IEffectSettings>(dynamic_cast<PhotoCore::TileSettings&>(*effect).Pre().at(0));
    }
    dynamic_cast<PhotoCore::TileSettings&>(*effect).Pre() = EffectsOf(GetParam().now);
    const PropertyTree saved = stored.Save();
    const PropertyTree* inner = &saved;
    for (int level = 0; level != 5; ++level)
    {
        EXPECT_EQ((*inner)["pre"].getList().at(0), EffectOf('U'));
        inner = &(*inner)["pre"].getList().at(1);
    }
    EXPECT_EQ(inner->contains("pre") ? TextOf((*inner)["pre"]) : "", GetParam().after);
}

INSTANTIATE_TEST_SUITE_P(Cases, ListInAnEffect,
                         testing::Values(Case{"UAVB", "AB", "UAVB"}, Case{"UA1VB", "aB", "Ua1VB"}, Case{"UAVB", "BA", "UBAV"},
                                         Case{"A1VB2", "CA", "CA1V"}, Case{"A1B2VC3", "AC", "A1VC3"}, Case{"UA1V", "", "UV"},
                                         Case{"UV", "A", "UVA"}, Case{"A1", "", ""}, Case{"A1UB", "ACB", "A1UCB"},
                                         Case{"A1B2", "CaB", "Ca1B2"}, Case{"A1B2C3", "CBA", "C3B2A1"},
                                         Case{"A1B2C3", "cb", "c3b2"}, Case{"A1UA2VB3", "AB", "A1UVB3"},
                                         Case{"A1a2", "a", "a2"}, Case{"A1a2", "A", "A1"}, Case{"U", "AB", "UAB"},
                                         Case{"A1UB2VC3", "bca", "b2Vc3a1U"}, Case{"A1B2", "AABB", "A1ABB2"}));

TEST(ListsInAnEffect, ANestedEffectThatIsChangedKeepsItsKeys)
{
    StoredEffects stored;
    stored.Load(ReadJson(R"({"foregroundEffects":[{"name":"EFFECT_OF_TOMORROW"},{"name":"EFFECT_ADJUSTER",)"
                         R"("smartBlur":{"chromaRadius":5,"later":[1],"lumaRadius":3},"x":{}}],)"
                         R"("name":"EffectsPackageOneInputWithBrush","y":1})"));
    auto& package = dynamic_cast<PhotoCore::EffectsPackageWithBrushSettings&>(*stored.Effect(0)).GetTypedSettings();
    const auto changed = package.GetForegroundEffects().at(0)->Clone();
    changed->GetPropertyAccess()->SetProperty("hue", PropertyTree(7));
    changed->GetPropertyAccess()->SetProperty("smartBlur", ReadJson(R"({"lumaRadius": 4})"));
    package.SetForegroundEffect(changed);
    EXPECT_EQ(WriteJson(stored.Save()),
              R"({"foregroundEffects":[{"name":"EFFECT_OF_TOMORROW"},{"hue":7.0,"name":"EFFECT_ADJUSTER",)"
              R"("smartBlur":{"chromaRadius":5,"later":[1],"lumaRadius":4},"x":{}}],)"
              R"("name":"EffectsPackageOneInputWithBrush","y":1})");
}

TEST(ListsInAnEffect, AFaceIsFoundAgainByWhatItHas)
{
    const char* json = R"({"facesEffects":[{"face":{"outline":{"contour":[{"x":1.0}]}},"later":1},)"
                       R"({"effect":{"name":"EFFECT_OF_TOMORROW"},"face":{"outline":{"contour":[{"x":2.0}]}}},)"
                       R"({"effect":{"name":"EFFECT_ACID","x":1},"face":{"outline":{"contour":[{"x":3.0}]}},"later":3}],)"
                       R"("name":"SettingsEffectFacePackage"})";
    StoredEffects stored;
    stored.Load(ReadJson(json));
    auto& package = dynamic_cast<PhotoCore::FacePackageSettings&>(*stored.Effect(0)).GetTypedSettings();
    auto faces = package.GetFaces();
    faces.erase(faces.begin());
    faces[1].effect->HelperSetting().SetUndoSet(true);
    std::ranges::reverse(faces);
    package.SetFaces(faces);
    EXPECT_EQ(WriteJson(stored.Save()),
              R"({"facesEffects":[{"effect":{"helperSettings":{"undoSet":true},"name":"EFFECT_ACID","x":1},)"
              R"("face":{"outline":{"contour":[{"x":3.0}]}},)"
              R"("later":3},{"effect":{"name":"EFFECT_OF_TOMORROW"},"face":{"outline":{"contour":[{"x":2.0}]}}}],)"
              R"("name":"SettingsEffectFacePackage"})");

    // A field of one effect has room for one.
    faces[1].effect = PhotoCore::VibranceSettings::CreateBase();
    package.SetFaces(faces);
    EXPECT_EQ(WriteJson(stored.Save()["facesEffects"].getList()[1]),
              R"({"effect":{"name":"EFFECT_VIBRANCE"},"face":{"outline":{"contour":[{"x":2.0}]}}})");
}

// Faces without a place are told apart by the classes of their effects.
TEST(ListsInAnEffect, AFaceIsFoundAgainByTheClassOfItsEffect)
{
    StoredEffects stored;
    stored.Load(ReadJson(R"({"facesEffects":[{"later":1},{"effect":{"name":"EFFECT_ACID","radius":1},"later":2}],)"
                         R"("name":"SettingsEffectFacePackage"})"));
    auto& package = dynamic_cast<PhotoCore::FacePackageSettings&>(*stored.Effect(0)).GetTypedSettings();
    auto faces = package.GetFaces();
    std::ranges::reverse(faces);
    faces[0].effect->GetPropertyAccess()->SetProperty("radius", PropertyTree(2));
    package.SetFaces(faces);
    EXPECT_EQ(WriteJson(stored.Save()),
              R"({"facesEffects":[{"effect":{"name":"EFFECT_ACID","radius":2},"later":2},{"later":1}],)"
              R"("name":"SettingsEffectFacePackage"})");
}

TEST(ListsInAnEffect, AnEffectOfAnotherClassIsAnother)
{
    StoredEffects stored;
    stored.Load(
        ReadJson(R"({"facesEffects":[{"effect":{"name":"EFFECT_ACID","x":1},"later":1}],"name":"SettingsEffectFacePackage"})"));
    auto& package = dynamic_cast<PhotoCore::FacePackageSettings&>(*stored.Effect(0)).GetTypedSettings();
    auto faces = package.GetFaces();
    faces[0].effect = PhotoCore::VibranceSettings::CreateBase();
    package.SetFaces(faces);
    EXPECT_EQ(WriteJson(stored.Save()),
              R"({"facesEffects":[{"effect":{"name":"EFFECT_VIBRANCE"},"later":1}],"name":"SettingsEffectFacePackage"})");
    faces[0].effect.reset();
    package.SetFaces(faces);
    EXPECT_EQ(WriteJson(stored.Save()), R"({"facesEffects":[{"later":1}],"name":"SettingsEffectFacePackage"})");
}

TEST(ListsInAnEffect, CellsKeepTheirOwn)
{
    StoredEffects stored;
    stored.Load(
        ReadJson(R"({"effectRows":[{"cols":[[{"name":"U"}],[{"name":"EFFECT_ACID","x":1}]],"later":1},{"cols":[[],3]}],)"
                 R"("name":"effectSettingsTileStub"})"));
    auto& tile = dynamic_cast<PhotoCore::TileSettings&>(*stored.Effect(0));
    tile.Effect(0, 0).push_back(PhotoCore::VibranceSettings::CreateBase());
    tile.Effect(1, 0).at(0)->HelperSetting().SetUndoSet(true);
    EXPECT_EQ(WriteJson(stored.Save()),
              R"({"effectRows":[{"cols":[[{"name":"U"},{"name":"EFFECT_VIBRANCE"}],[{"helperSettings":{"undoSet":true},)"
              R"("name":"EFFECT_ACID","x":1}]],"later":1},{"cols":[[],3]}],"name":"effectSettingsTileStub"})");
    tile.SetSize(1, 1);
    EXPECT_EQ(WriteJson(stored.Save()),
              R"({"effectRows":[{"cols":[[{"name":"U"}]],"later":1}],"name":"effectSettingsTileStub"})");
}

StoredEffects LoadedList(std::string_view text)
{
    StoredEffects stored;
    stored.Load(ListOf(text));
    return stored;
}

std::shared_ptr<IEffectSettings> MadeEffect(char letter)
{
    std::shared_ptr<IEffectSettings> effect;
    PhotoCore::EffectSettings::DeserializePtr(EffectOf(letter), effect);
    return effect;
}

TEST(ListOfItems, IsChangedByIndex)
{
    StoredEffects stored = LoadedList("A1UB2V");
    stored.Insert(0, MadeEffect('C'));
    stored.Insert(5, MadeEffect('c'));
    EXPECT_EQ(TextOf(stored.Save()), "CA1UB2Vc");
    stored.Remove(1);
    EXPECT_EQ(TextOf(stored.Save()), "CUB2Vc");
    stored.Move(1, 3);
    EXPECT_EQ(TextOf(stored.Save()), "CB2VUc");
    stored.Move(4, 0);
    EXPECT_EQ(TextOf(stored.Save()), "cCB2VU");
    EXPECT_EQ(TextOf(stored.Save()), "cCB2VU");
    EXPECT_EQ(stored.Loaded(0), PropertyTree());
    EXPECT_EQ(stored.Save(2), ListOf("B2").getList()[0]);
    stored.Insert(1, nullptr);
    EXPECT_EQ(stored.Save().getList()[1], PropertyTree());
}

TEST(ListOfItems, RefusesIndicesThatAreNotThere)
{
    StoredEffects stored = LoadedList("AU");
    EXPECT_THROW(stored.Effect(2), std::out_of_range);
    EXPECT_THROW(stored.Loaded(2), std::out_of_range);
    EXPECT_THROW(stored.Insert(3, nullptr), std::out_of_range);
    EXPECT_THROW(stored.Replace(2, nullptr), std::out_of_range);
    EXPECT_THROW(stored.Remove(2), std::out_of_range);
    EXPECT_THROW(stored.Move(0, 2), std::out_of_range);
    EXPECT_THROW(stored.Move(2, 0), std::out_of_range);
    EXPECT_THROW(stored.Save(2), std::out_of_range);
    EXPECT_EQ(TextOf(stored.Save()), "AU");
}

TEST(ListOfItems, ReplacesAnEffectByAChangedClone)
{
    StoredEffects stored = LoadedList("A1UB2");
    const auto clone = stored.Effect(0)->Clone();
    clone->GetPropertyAccess()->SetProperty("radius", PropertyTree(2));
    stored.Replace(0, clone);
    EXPECT_EQ(TextOf(stored.Save()), "a1UB2");
    stored.Replace(2, MadeEffect('A'));
    EXPECT_EQ(TextOf(stored.Save()), "a1UA");
    EXPECT_EQ(stored.Loaded(2), PropertyTree());
    stored.Replace(1, MadeEffect('B'));
    EXPECT_EQ(TextOf(stored.Save()), "a1BA");
    stored.Replace(0, nullptr);
    EXPECT_EQ(stored.Save().getList()[0], PropertyTree());
}

TEST(ListOfItems, TakesTheEffectsInAnotherOrder)
{
    const auto arrange = [](std::string_view before, std::vector<int> order) // by index; -1 for a new effect
    {
        StoredEffects stored = LoadedList(before);
        const std::vector<StoredEffects::EffectPtr> effects = stored.Effects();
        std::vector<StoredEffects::EffectPtr> now;
        for (const int index : order)
        {
            now.push_back(index < 0 ? MadeEffect('C') : effects.at(static_cast<std::size_t>(index)));
        }
        stored.SetEffects(now);
        EXPECT_EQ(stored.Effects(), now);
        return TextOf(stored.Save());
    };
    EXPECT_EQ(arrange("UA1VB2W", {0, 1}), "UA1VB2W");
    EXPECT_EQ(arrange("UA1VB2W", {1, 0}), "UB2WA1V");
    EXPECT_EQ(arrange("UA1VB2W", {1}), "UVB2W");
    EXPECT_EQ(arrange("UA1VB2W", {}), "UVW");
    EXPECT_EQ(arrange("UA1VB2W", {-1, 0, -1, 1, -1}), "UCA1VCB2WC");
    EXPECT_EQ(arrange("A1", {0, 0}), "A1A");
    EXPECT_EQ(arrange("UV", {-1}), "UVC");
}

TEST(ListOfItems, OfASingleEffectIsAListOnlyWhenItHasMore)
{
    StoredEffects stored;
    stored.Load(EffectOf('A'));
    EXPECT_EQ(stored.Save(), EffectOf('A'));
    stored.Insert(1, MadeEffect('B'));
    EXPECT_EQ(TextOf(stored.Save()), "AB");
    stored.Remove(0);
    EXPECT_EQ(stored.Save(), EffectOf('B'));
    stored.Remove(0);
    EXPECT_EQ(stored.Save(), ListOf(""));
    EXPECT_EQ(StoredEffects().Save(), ListOf(""));
    EXPECT_EQ(LoadedList("A").Save(), ListOf("A"));
}

TEST(ListOfItems, MovesAsAWhole)
{
    StoredEffects stored = LoadedList("A1UB2");
    StoredEffects moved = std::move(stored);
    moved.Effect(0)->HelperSetting().SetUndoSet(true);
    EXPECT_TRUE(moved.Save().getList()[0].contains("later"));
}

} // namespace
