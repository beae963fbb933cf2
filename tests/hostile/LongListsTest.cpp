#include "Proc/EffectSettings/FacePackageSettings.h"
#include "Proc/EffectSettings/TileSettings.h"
#include "catalogue/CatalogueFixture.h"
#include "support/FailingMemory.h"

#include <algorithm>
#include <array>
#include <ostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

// Lists of a million elements, most of them nothing: reading one must not take many times the memory that the tree has, nor
// any for what only claims to be long.
namespace Catalogue
{
namespace
{

using FaceItem = Ombrel::PhotoCore::SettingsEffectFacePackage::FaceItem;
using Row = Ombrel::PhotoCore::TileSettings::Row;
using Support::PeakMemoryOf;

constexpr std::size_t COUNT = 1'000'000;

enum class Outcome
{
    Taken,     // as many elements as the list has
    Nothing,   // read, but no element shows
    Refused,   // `std::invalid_argument` at the first element
    NoSuchKey, // `std::out_of_range` at the first element
};

void PrintTo(Outcome outcome, std::ostream* out)
{
    constexpr const char* names[] = {"Taken", "Nothing", "Refused", "NoSuchKey"};
    *out << names[static_cast<int>(outcome)];
}

struct Given
{
    const char* name;
    PropertyTree element;
};

const Given GIVEN[] = {
    {"nulls", PropertyTree()}, {"empty maps", Map({})}, {"empty lists", Support::List({})}, {"integers", 1},
    {"floats", 1.5},           {"bools", true},         {"texts", "no such name"},
};

// A list by its key, with the memory of one element and the outcomes in the order of `GIVEN`.
struct ListKind
{
    std::string_view key;
    std::size_t elementSize;
    Outcome outcomes[std::size(GIVEN)];
};

using enum Outcome;

constexpr std::size_t POINT = 8;
constexpr std::size_t NAME = 4;
constexpr std::size_t POINTER = 16;

const ListKind LISTS[] = {
    {"contour", POINT, {Refused, Taken, Refused, Refused, Refused, Refused, Refused}},
    {"trace", POINT, {Refused, Taken, Refused, Refused, Refused, Refused, Refused}},
    {"requiredFormats", NAME, {Taken, Taken, Taken, Refused, Refused, Refused, Taken}},
    {"mode", NAME, {Nothing, Nothing, Nothing, Refused, Refused, Refused, Nothing}},
    {"gradient", 0, {Refused, NoSuchKey, Refused, Refused, Refused, Refused, Refused}},
    {"pre", POINTER, {Taken, NoSuchKey, Refused, Refused, Refused, Refused, Refused}},
    {"post", POINTER, {Taken, NoSuchKey, Refused, Refused, Refused, Refused, Refused}},
    {"foregroundEffects", POINTER, {Taken, NoSuchKey, Refused, Refused, Refused, Refused, Refused}},
    {"backgroundEffects", POINTER, {Taken, NoSuchKey, Refused, Refused, Refused, Refused, Refused}},
    {"facesEffects", sizeof(FaceItem), {Refused, Taken, Refused, Refused, Refused, Refused, Refused}},
    {"effectRows", sizeof(Row), {Refused, Taken, Refused, Refused, Refused, Refused, Refused}},
};

// Nothing for a list that is not told of above: what becomes of its elements is then left open, and it takes what a list may.
const ListKind* KindOf(const std::string& key)
{
    const auto found = std::ranges::find(LISTS, key, &ListKind::key);
    return found == std::end(LISTS) ? nullptr : found;
}

constexpr std::size_t LARGE_ELEMENT = 64;

using Path = std::vector<std::string>;

// Where the lists of an effect stand, those of its nested records too.
void Collect(const std::vector<Field>& fields, const Path& parent, std::vector<Path>& lists)
{
    for (const Field& field : fields)
    {
        Path path = parent;
        path.push_back(field.key);
        Collect(field.nested, path, lists);
        if (field.kind == Kind::List || field.kind == Kind::Set || field.kind == Kind::ColorMap ||
            field.kind == Kind::EffectList)
        {
            lists.push_back(path);
        }
    }
}

PropertyTree& At(PropertyTree& tree, const Path& path)
{
    PropertyTree* place = &tree;
    for (const std::string& key : path)
    {
        place = &(*place)[key];
    }
    return *place;
}

std::size_t LengthAt(const PropertyTree& tree, const Path& path)
{
    const PropertyTree* place = &tree;
    for (const std::string& key : path)
    {
        if (!place->contains(key))
        {
            return 0;
        }
        place = &(*place)[key];
    }
    return place->getList().size();
}

PropertyTree LongList(const PropertyTree& element)
{
    PropertyTree tree;
    tree.convertToList();
    tree.getList().assign(COUNT, element);
    return tree;
}

Outcome OutcomeOf(IEffectSettings& effect, const PropertyTree& tree)
{
    try
    {
        effect.Deserialize(tree);
        return Taken;
    }
    catch (const std::invalid_argument&)
    {
        return Refused;
    }
    catch (const std::out_of_range&)
    {
        return NoSuchKey;
    }
}

} // namespace

class LongListsTest : public CatalogueTest
{
protected:
    struct List
    {
        PropertyTree tree; // lent to a map, since copies take their time
        std::size_t size = 0;
    };

    static void SetUpTestSuite()
    {
        for (std::size_t i = 0; i < std::size(GIVEN); ++i)
        {
            const std::size_t before = Support::HeldMemory();
            s_lists[i].tree = LongList(GIVEN[i].element);
            s_lists[i].size = Support::HeldMemory() - before;
        }
    }

    static void TearDownTestSuite() { s_lists = {}; }

    static std::vector<Path> Lists()
    {
        std::vector<Path> lists;
        Collect(GetParam().fields, {}, lists);
        return lists;
    }

    // Reads a long list, and does with it what else is done with effects.
    static void Try(const Path& path, List& list, std::size_t elementSize, std::optional<Outcome> expected)
    {
        PropertyTree tree;
        At(tree, path) = std::move(list.tree);
        const std::size_t bound = 4 * list.size + COUNT * elementSize;

        const auto effect = Make();
        Outcome outcome = Taken;
        EXPECT_LE(PeakMemoryOf([&] { outcome = OutcomeOf(*effect, tree); }), bound);
        if (expected)
        {
            EXPECT_EQ(outcome, *expected == Nothing ? Taken : *expected);
        }
        list.tree = std::move(At(tree, path));

        PropertyTree stored;
        EXPECT_LE(PeakMemoryOf([&] { effect->Serialize(stored); }), 4 * list.size);
        if (expected)
        {
            EXPECT_EQ(LengthAt(stored, path), *expected == Taken ? COUNT : 0u);
        }

        std::shared_ptr<IEffectSettings> clone;
        EXPECT_LE(PeakMemoryOf([&] { clone = effect->Clone(); }), bound);
        EXPECT_TRUE(*clone == *effect);
        EXPECT_LE(PeakMemoryOf([&] { clone->SetEffectSettings(effect->GetEffectSettings()); }), bound);
        EXPECT_EQ(clone->IsEmpty(), effect->IsEmpty());
        clone->Add(*effect);
    }

    static std::array<List, std::size(GIVEN)> s_lists;
};

std::array<LongListsTest::List, std::size(GIVEN)> LongListsTest::s_lists;

TEST_P(LongListsTest, NeedTheMemoryOfTheirElements)
{
    for (const Path& path : Lists())
    {
        const ListKind* kind = KindOf(path.back());
        for (std::size_t i = 0; i < std::size(GIVEN); ++i)
        {
            SCOPED_TRACE(path.back() + " of " + GIVEN[i].name);
            Try(path, s_lists[i], kind ? kind->elementSize : LARGE_ELEMENT,
                kind ? std::optional(kind->outcomes[i]) : std::nullopt);
        }
    }
}

// Only a list that is there has a length.
TEST_P(LongListsTest, NothingIsReservedForWhatIsNoList)
{
    for (const Path& path : Lists())
    {
        for (const PropertyTree& value :
             {PropertyTree(std::int64_t{1} << 40), PropertyTree(1e12), PropertyTree("1000000000000"), Map({{"size", 1e12}})})
        {
            PropertyTree tree;
            At(tree, path) = value;
            const auto effect = Make();
            effect->Deserialize(Map({})); // makes the default record
            EXPECT_LE(PeakMemoryOf([&] { effect->Deserialize(tree); }), 0u) << path.back();
            EXPECT_EQ(LengthAt(StoredForm(*effect), path), 0u) << path.back();
        }
    }
}

// As many effects as stand there by their names, and of each no more than a new one takes.
TEST_P(LongListsTest, OfEffectsHoldEffects)
{
    constexpr std::size_t count = 1000;
    if (GetParam().place == Place::None)
    {
        return;
    }
    const std::size_t effectSize = PeakMemoryOf([] { IEffectSettings::CreateEffectSettings(GetParam().classId); });
    const std::size_t before = Support::HeldMemory();
    PropertyTree tree;
    tree["pre"].convertToList();
    tree["pre"].getList().assign(count, Map({{"name", GetParam().classId}}));
    const std::size_t size = Support::HeldMemory() - before;

    const auto tile = IEffectSettings::CreateEffectSettings("effectSettingsTileStub");
    EXPECT_LE(PeakMemoryOf([&] { tile->Deserialize(tree); }), 4 * size + count * (POINTER + effectSize));
    EXPECT_EQ(LengthAt(StoredForm(*tile), {"pre"}), count);
}

INSTANTIATE_TEST_SUITE_P(All, LongListsTest, testing::ValuesIn(Catalogue::All()),
                         [](const auto& row) { return row.param.className; });

// The cells of a row and the effects of a cell.
TEST(LongListsInRows, NeedTheMemoryOfTheirElements)
{
    struct Case
    {
        PropertyTree row;
        std::size_t elementSize;
    };
    const PropertyTree nulls = LongList(PropertyTree());
    for (const auto& [cols, elementSize] :
         {Case{LongList(Support::List({})), sizeof(IEffectSettings::List)}, Case{Support::List({nulls}), POINTER}})
    {
        const std::size_t before = Support::HeldMemory();
        const PropertyTree tree = Map({{"effectRows", Support::List({Map({{"cols", cols}})})}});
        const std::size_t size = Support::HeldMemory() - before;
        Ombrel::PhotoCore::TileSettings tile;
        EXPECT_LE(PeakMemoryOf([&] { tile.Deserialize(tree); }), 4 * size + COUNT * elementSize);
        EXPECT_TRUE(StoredForm(tile) == tree);
        EXPECT_TRUE(tile == Ombrel::PhotoCore::TileSettings(tile));
    }
}

// The set of names that every effect has, read by the same code for all.
TEST(LongListsOfApplyModes, AreFewNames)
{
    for (const Given& given : {GIVEN[0], GIVEN[1], GIVEN[2], GIVEN[6]})
    {
        PropertyTree tree;
        tree["helperSettings"]["applyMode"] = LongList(given.element);
        const auto effect = IEffectSettings::CreateEffectSettings("EFFECT_ACID");
        EXPECT_LE(PeakMemoryOf([&] { effect->Deserialize(tree); }), 1000u) << given.name;
        EXPECT_EQ(StoredForm(*effect)["helperSettings"], Map({{"applyMode", Support::List({"Invalid"})}})) << given.name;
    }
}

} // namespace Catalogue
