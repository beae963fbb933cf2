#include "Proc/EffectSettings/EffectSettings.h"
#include "PropertyTreeJson/PropertyTreeJson.h"
#include "support/SmallStack.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>

// Effects in effects as JSON text: what can be written is read back with the options as they are.
namespace Ombrel
{
namespace
{

using PhotoCore::EffectSettings;
using PhotoCore::IEffectSettings;

constexpr std::size_t STACK = (Support::HAS_SANITIZER ? 4 : 1) * 1024 * 1024;

PropertyTree TileOf(PropertyTree cell)
{
    PropertyTree row;
    row["cols"].append(std::move(cell));
    PropertyTree tile;
    tile["effectRows"].append(std::move(row));
    tile["name"] = "effectSettingsTileStub";
    return tile;
}

// Tiles, each in the only cell of the one around it. A tile takes five levels of JSON, more than any other effect that holds
// effects.
PropertyTree Tiles(int count, PropertyTree innermost)
{
    PropertyTree tree = std::move(innermost);
    for (int i = 0; i < count; ++i)
    {
        PropertyTree cell;
        cell.append(std::move(tree));
        tree = TileOf(std::move(cell));
    }
    return tree;
}

PropertyTree TileWithAnEmptyCell()
{
    PropertyTree cell;
    cell.convertToList();
    return TileOf(std::move(cell));
}

PropertyTree Acid()
{
    PropertyTree tree;
    tree["name"] = "EFFECT_ACID";
    tree["radius"] = 4;
    return tree;
}

// The lists and maps that are open at once in `text`, which has no bracket in a string.
int LevelsOf(const std::string& text)
{
    int open = 0;
    int most = 0;
    for (const char c : text)
    {
        open += c == '[' || c == '{' ? 1 : 0;
        open -= c == ']' || c == '}' ? 1 : 0;
        most = std::max(most, open);
    }
    return most;
}

std::shared_ptr<IEffectSettings> Read(const PropertyTree& tree)
{
    std::shared_ptr<IEffectSettings> effect;
    EffectSettings::DeserializePtr(tree, effect);
    return effect;
}

struct Innermost
{
    const char* name;
    PropertyTree tree;
    int tiles;  // around it
    int levels; // of the text
};

void PrintTo(const Innermost& innermost, std::ostream* out)
{
    *out << innermost.name;
}

class JsonNestedEffects : public testing::TestWithParam<Innermost>
{
};

TEST_P(JsonNestedEffects, ComeBack)
{
    const auto work = []
    {
        const PropertyTree tree = Tiles(GetParam().tiles, GetParam().tree);
        const std::shared_ptr<const IEffectSettings> effect = Read(tree);
        PropertyTree written;
        EffectSettings::SerializePtr(written, effect);
        EXPECT_TRUE(written == tree);
        PropertyTree list;
        list.append(std::move(written));

        const std::string text = WriteJson(list);
        EXPECT_EQ(LevelsOf(text), GetParam().levels);
        const PropertyTree restored = ReadJson(text);
        EXPECT_TRUE(restored == list);
        EXPECT_TRUE(*Read(restored.getList().front()) == *effect);
        EXPECT_TRUE(ReadJson(WriteJson(list, {.indent = 2})) == list);
    };
    Support::RunOnStack(STACK, work);
}

INSTANTIATE_TEST_SUITE_P(Of512, JsonNestedEffects,
                         testing::Values(Innermost{"a tile innermost", TileWithAnEmptyCell(), 511, 2561},
                                         Innermost{"a null effect innermost", PropertyTree(), 512, 2561},
                                         Innermost{"an acid innermost", Acid(), 511, 2557}));

// The text can be read and written, the effects cannot.
TEST(JsonNestedEffectsLimit, EndsAtThe513th)
{
    const auto work = []
    {
        const PropertyTree tree = ReadJson(WriteJson(Tiles(513, PropertyTree())));
        EXPECT_THROW(Read(tree), std::length_error);
        const auto effect = IEffectSettings::CreateEffectSettings("effectSettingsTileStub");
        effect->Deserialize(tree);
        PropertyTree written;
        EXPECT_THROW(EffectSettings::SerializePtr(written, effect), std::length_error);
    };
    Support::RunOnStack(STACK, work);
}

} // namespace
} // namespace Ombrel
