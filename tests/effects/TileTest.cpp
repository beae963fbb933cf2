#include "Proc/EffectSettings/TileSettings.h"

#include "Exception/Exception.h"
#include "Proc/EffectSettings/AcidSettings.h"
#include "Proc/EffectSettings/EffectSettingsSimple.h"
#include "effects/FacePackageSamples.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <concepts>
#include <memory>
#include <type_traits>
#include <typeinfo>

namespace
{

using namespace Ombrel::PhotoCore;
using FacePackageSamples::Vibrance;
using Ombrel::PropertyTree;
using Support::List;
using Support::Map;
using Support::Restored;
using Support::StoredForm;

static_assert(std::is_same_v<decltype(TileSettings::Create(1, 1)), std::shared_ptr<TileSettings>>);
static_assert(std::is_same_v<decltype(std::declval<const TileSettings&>().GetWidth()), std::uint64_t>);
static_assert(std::is_same_v<decltype(std::declval<const TileSettings&>().GetHeight()), std::uint64_t>);
static_assert(std::is_same_v<decltype(std::declval<TileSettings&>().Effect(0, 0)), IEffectSettings::List&>);
static_assert(std::is_same_v<decltype(std::declval<const TileSettings&>().Effect(0, 0)), const IEffectSettings::List&>);
static_assert(std::constructible_from<TileSettings, const TileSettingsStub&>);

// Two columns, two rows, an effect in each list.
TileSettings Sample()
{
    TileSettings tile(2, 2);
    tile.Pre() = {Vibrance(1)};
    tile.Post() = {Vibrance(2), Vibrance(3)};
    tile.Effect(1, 0) = {Vibrance(4)};
    tile.Effect(0, 1) = {Vibrance(5)};
    return tile;
}

// A row of two cells, a row of one and a row of none; nulls in every list.
PropertyTree RaggedForm()
{
    const PropertyTree acid = Map({{"name", "EFFECT_ACID"}, {"radius", 4}});
    return Map({{"effectRows", List({
                                   Map({{"cols", List({List({PropertyTree()}), List({acid, PropertyTree()})})}}),
                                   Map({{"cols", List({List({acid})})}}),
                                   Map({}),
                               })},
                {"post", List({PropertyTree()})},
                {"pre", List({PropertyTree(), acid})}});
}

TEST(Tile, IsMadeAsAGridOfEmptyCells)
{
    const auto tile = TileSettings::Create(3, 2);
    EXPECT_EQ(tile->GetWidth(), 3u);
    EXPECT_EQ(tile->GetHeight(), 2u);
    for (std::uint64_t y = 0; y < 2; ++y)
    {
        for (std::uint64_t x = 0; x < 3; ++x)
        {
            EXPECT_TRUE(tile->Effect(x, y).empty()) << x << ", " << y;
        }
    }
    tile->Effect(2, 1) = {Vibrance(7)};
    EXPECT_EQ(
        StoredForm(*tile),
        Map({{"effectRows", List({Map({{"cols", List({List({}), List({}), List({})})}}),
                                  Map({{"cols", List({List({}), List({}),
                                                      List({Map({{"name", "EFFECT_VIBRANCE"}, {"strength", 7}})})})}})})}}));
}

TEST(Tile, HandsOutEachOfItsLists)
{
    TileSettings tile = Sample();
    const TileSettings& same = tile;
    EXPECT_EQ(&same.Pre(), &tile.Pre());
    EXPECT_EQ(&same.Post(), &tile.Post());
    EXPECT_EQ(&same.Effect(1, 0), &tile.Effect(1, 0));
    EXPECT_EQ(same.Pre().size(), 1u);
    EXPECT_EQ(same.Post().size(), 2u);
}

TEST(Tile, IsMadeAsAnEmptyGrid)
{
    for (const TileSettings& tile : {TileSettings(), TileSettings(TileSettingsStub())})
    {
        EXPECT_EQ(tile.GetWidth(), 0u);
        EXPECT_EQ(tile.GetHeight(), 0u);
        EXPECT_EQ(StoredForm(tile), Map({}));
    }
    EXPECT_TRUE(TileSettings::Create(TileSettingsStub())->Pre().empty());
}

TEST(Tile, AGridMayHaveRowsWithoutCells)
{
    TileSettings tile = Sample();
    tile.SetSize(0, 2);
    EXPECT_EQ(tile.GetWidth(), 0u);
    EXPECT_EQ(tile.GetHeight(), 2u);
    const TileSettings restored = Restored<TileSettings>(StoredForm(tile));
    EXPECT_EQ(restored.GetHeight(), 2u);
    EXPECT_TRUE(restored == tile);
}

TEST(Tile, SettingTheSizeEmptiesTheCells)
{
    TileSettings tile(3, 2);
    tile.Pre() = {Vibrance(1)};
    tile.Effect(2, 1) = {Vibrance(7)};
    tile.SetSize(3, 2);
    EXPECT_EQ(tile.GetWidth(), 3u);
    EXPECT_EQ(tile.GetHeight(), 2u);
    EXPECT_TRUE(tile.Effect(2, 1).empty());
    EXPECT_EQ(tile.Pre().size(), 1u);
}

TEST(Tile, AGridThatIsTooLargeLeavesTheOldOne)
{
    TileSettings tile = Sample();
    EXPECT_THROW(tile.SetSize(std::uint64_t{1} << 62, 1), std::length_error);
    EXPECT_THROW(tile.SetSize(1, std::uint64_t{1} << 62), std::length_error);
    EXPECT_TRUE(tile == Sample());

    tile.SetSize(std::uint64_t{1} << 62, 0); // no row, no cell
    EXPECT_EQ(tile.GetWidth(), 0u);
    EXPECT_EQ(tile.GetHeight(), 0u);
}

TEST(Tile, ACopyHoldsClones)
{
    const TileSettings tile = Sample();
    TileSettings copy(tile);
    TileSettings assigned(5, 5);
    assigned = tile;
    const auto clone = std::dynamic_pointer_cast<TileSettings>(tile.Clone());
    for (TileSettings* other : {&copy, &assigned, clone.get()})
    {
        EXPECT_TRUE(*other == tile);
        for (auto& effect : {other->Pre()[0], other->Post()[1], other->Effect(1, 0)[0], other->Effect(0, 1)[0]})
        {
            dynamic_cast<VibranceSettings&>(*effect).GetTypedSettings().m_strength = 99;
        }
    }
    EXPECT_TRUE(tile == Sample());
}

// The lists are copied and nothing else.
TEST(Tile, ACopyHasTheDefaultsOfTheBase)
{
    TileSettings tile = Sample();
    tile.Deserialize(Map({{"implName", "other"}}));
    tile.HelperSetting().SetMaxWidth(640);
    EXPECT_EQ(TileSettings(tile).GetImplName(), "default");
    EXPECT_EQ(TileSettings(tile).GetHelperSettings().GetMaxWidth(), HelperSettings().GetMaxWidth());
    EXPECT_EQ(tile.Clone()->GetImplName(), "default");

    TileSettings receiver;
    receiver.Deserialize(Map({{"implName", "own"}}));
    receiver.HelperSetting().SetMaxWidth(320);
    receiver = tile;
    EXPECT_EQ(receiver.GetImplName(), "own");
    EXPECT_EQ(receiver.GetHelperSettings().GetMaxWidth(), 320u);
}

TEST(Tile, SurvivesItsAssignmentToItself)
{
    TileSettings tile = Sample();
    const TileSettings& same = tile;
    const auto effect = tile.Pre()[0];
    tile = same;
    EXPECT_TRUE(tile == Sample());
    EXPECT_EQ(tile.Pre()[0], effect);
}

TEST(Tile, ComparesEveryListInItsPlace)
{
    EXPECT_TRUE(Sample() == Sample());
    const auto differs = [](const auto& change)
    {
        TileSettings tile = Sample();
        change(tile);
        return !(tile == Sample()) && !(Sample() == tile);
    };
    EXPECT_TRUE(differs([](TileSettings& tile) { tile.Pre() = {Vibrance(9)}; }));
    EXPECT_TRUE(differs([](TileSettings& tile) { tile.Pre().push_back(Vibrance(1)); }));
    EXPECT_TRUE(differs([](TileSettings& tile) { tile.Post().pop_back(); }));
    EXPECT_TRUE(differs([](TileSettings& tile) { tile.Post()[1] = Vibrance(9); }));
    EXPECT_TRUE(differs([](TileSettings& tile) { std::swap(tile.Effect(1, 0), tile.Effect(0, 1)); }));
    EXPECT_TRUE(differs([](TileSettings& tile) { tile.Effect(1, 1) = {Vibrance(1)}; }));
    EXPECT_FALSE(TileSettings(3, 2) == TileSettings(2, 3));
    EXPECT_FALSE(TileSettings(2, 2) == TileSettings(2, 3));
    EXPECT_FALSE(TileSettings(2, 2) == TileSettings(3, 2));
    EXPECT_TRUE(TileSettings(2, 3) == TileSettings(2, 3));
}

// Unlike tiles, which ask the effects themselves.
TEST(Tile, RowsAreEqualThatHoldTheVerySameEffects)
{
    const auto effect = Vibrance(1);
    EXPECT_TRUE((TileSettings::Row{{{effect}, {}}}) == (TileSettings::Row{{{effect}, {}}}));
    EXPECT_FALSE((TileSettings::Row{{{effect}, {}}}) == (TileSettings::Row{{{effect}}}));
    EXPECT_FALSE(TileSettings::Row{{{effect}}} == TileSettings::Row{{{Vibrance(1)}}});
}

TEST(Tile, NullsAreEqualToNullsAlone)
{
    TileSettings nulls(1, 1);
    nulls.Pre() = {nullptr};
    TileSettings effects(1, 1);
    effects.Pre() = {Vibrance(1)};
    EXPECT_TRUE(nulls == TileSettings(nulls));
    EXPECT_FALSE(nulls == effects);
    EXPECT_FALSE(effects == nulls);
}

// An effect that does not equal itself makes a tile unequal that holds the very same pointer.
TEST(Tile, ComparesAnEffectWithItself)
{
    TileSettings tile;
    tile.Pre() = {std::make_shared<EffectSettingsSimple>()};
    TileSettings same;
    same.Pre() = tile.Pre();
    EXPECT_FALSE(tile == same);
}

// Says it is a tile and is none: comparing it with one throws.
class Impostor : public EffectSettingsSimple
{
public:
    Impostor() : EffectSettingsSimple(InputType::One, std::make_shared<TileSettingsStub>()) {}
};

TEST(Tile, RefusesToCompareAnotherClassWithItsId)
{
    const TileSettings tile;
    EXPECT_THROW(static_cast<void>(tile == Impostor()), std::bad_cast);
}

TEST(Tile, ComparesNoEffectOfGridsOfDifferentShape)
{
    TileSettings small(1, 1);
    small.Effect(0, 0) = {std::make_shared<TileSettings>()};
    TileSettings large(1, 2);
    large.Effect(0, 0) = {std::make_shared<Impostor>()};
    EXPECT_FALSE(small == large);
    large.SetSize(2, 1);
    large.Effect(0, 0) = {std::make_shared<Impostor>()};
    EXPECT_FALSE(small == large);
    large.SetSize(1, 1);
    large.Effect(0, 0) = {std::make_shared<Impostor>()};
    EXPECT_THROW(static_cast<void>(small == large), std::bad_cast);
}

TEST(Tile, RaggedGridsAndNullsAreCarriedAlong)
{
    const TileSettings tile = Restored<TileSettings>(RaggedForm());
    EXPECT_EQ(tile.GetWidth(), 2u);
    EXPECT_EQ(tile.GetHeight(), 3u);
    PropertyTree expected = RaggedForm();
    expected["effectRows"].getList()[2] = Map({}); // a row without cells is stored without "cols"
    EXPECT_EQ(StoredForm(tile), expected);

    TileSettings copy(tile);
    EXPECT_EQ(StoredForm(copy), expected);
    EXPECT_TRUE(copy == tile);
    EXPECT_FALSE(copy.IsEmpty());
    copy.Effect(0, 1).clear();
    EXPECT_FALSE(copy == tile);

    TileSettings rectangular(2, 3);
    rectangular.Pre() = copy.Pre();
    rectangular.Post() = copy.Post();
    EXPECT_FALSE(rectangular == tile);
    EXPECT_FALSE(tile == rectangular);

    const IEffectSettings::List list{nullptr, std::make_shared<TileSettings>(tile)};
    EXPECT_EQ(IEffectSettings::Find(list, "effectSettingsTileStub"), list[1]);
    EXPECT_FALSE(IEffectSettings::Find(tile.Effect(1, 0), "EFFECT_ACID") == nullptr);
}

TEST(Tile, AMissingKeyEmptiesItsList)
{
    TileSettings tile = Sample();
    tile.Deserialize(Map({{"post", List({PropertyTree()})}}));
    EXPECT_TRUE(tile.Pre().empty());
    EXPECT_EQ(tile.Post().size(), 1u);
    EXPECT_EQ(tile.GetHeight(), 0u);
}

TEST(Tile, AValueThatIsNoListLeavesItsListAlone)
{
    TileSettings tile = Sample();
    tile.Deserialize(Map({{"effectRows", 3}, {"post", Map({})}, {"pre", "text"}}));
    EXPECT_TRUE(tile == Sample());
}

TEST(Tile, AFailingElementKeepsWhatStandsBeforeIt)
{
    TileSettings tile = Sample();
    const PropertyTree acid = Map({{"name", "EFFECT_ACID"}});
    const PropertyTree unknown = Map({{"name", "EFFECT_OF_TOMORROW"}});
    EXPECT_THROW(tile.Deserialize(Map({{"pre", List({acid, unknown, acid})}})), Ombrel::Exception);
    EXPECT_EQ(tile.Pre().size(), 1u);
    EXPECT_EQ(tile.Pre()[0]->GetClassId(), "EFFECT_ACID");
    EXPECT_EQ(tile.Post().size(), 2u);
}

TEST(TileStub, IsEqualToAnyOtherAndToNoOtherRecord)
{
    const TileSettingsStub stub;
    EXPECT_EQ(TileSettingsStub::CLASS_ID, "effectSettingsTileStub");
    EXPECT_TRUE(stub == TileSettingsStub());
    EXPECT_TRUE(stub.IsEqualTo(TileSettingsStub()));
    EXPECT_THROW(stub.IsEqualTo(Ombrel::Proc::SettingsEffectAcid()), std::bad_cast);
    EXPECT_FALSE(stub.IsEmpty());
    const std::unique_ptr<Ombrel::Proc::Settings> clone(stub.Clone());
    const auto& object = *clone;
    EXPECT_EQ(typeid(object), typeid(TileSettingsStub));
}

} // namespace
