#include "Proc/Reflection/Folds.h"
#include "PropertyTree/PropertyTree.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <utility>

// A record with more fields than a word has bits.
namespace
{

using namespace Ombrel;
using namespace Ombrel::Proc;

constexpr std::size_t FIELDS = 70;
constexpr std::int32_t REFUSED = -1;

struct Wide
{
    static const RecordSchema& Schema() noexcept;

    bool operator==(const Wide&) const = default;

    std::array<std::int32_t, FIELDS> values{};
};

template <std::size_t Index> void Set(Wide& wide, std::int32_t value)
{
    wide.values[Index] = value;
}

template <std::size_t Index> std::int32_t Get(const Wide& wide)
{
    if (wide.values[Index] == REFUSED)
    {
        throw std::runtime_error("refused");
    }
    return wide.values[Index];
}

// The keys are in the opposite order of the fields: "k69" is the first.
consteval auto KeyOf(std::size_t index)
{
    const std::size_t number = FIELDS - 1 - index;
    const char text[] = {'k', static_cast<char>('0' + number / 10), static_cast<char>('0' + number % 10), '\0'};
    return KeyText(text);
}

template <std::size_t... Index> const RecordSchema& SchemaOf(std::index_sequence<Index...>) noexcept
{
    return Describe<Wide, FieldList<AccessorDescriptor<KeyOf(Index), &Set<Index>, &Get<Index>>...>>();
}

const RecordSchema& Wide::Schema() noexcept
{
    return SchemaOf(std::make_index_sequence<FIELDS>());
}

constexpr ReadFlags READ{.resetMissing = true};
constexpr WriteFlags CHANGED{.resetTargets = false, .omitDefaults = true};
constexpr WriteFlags ALL{.resetTargets = false, .omitDefaults = false};

void Write(const Wide& wide, PropertyTree& tree, const WriteFlags& flags)
{
    tree.convertToMap();
    Reflected<Wide>::Write({wide, tree.getMap(), &flags});
}

TEST(WideRecord, ComesBackWhole)
{
    Wide wide;
    for (std::size_t i = 0; i < FIELDS; ++i)
    {
        wide.values[i] = static_cast<std::int32_t>(i + 1);
    }
    PropertyTree tree;
    Write(wide, tree, CHANGED);
    EXPECT_EQ(tree.getMap().size(), 70U);
    EXPECT_EQ(tree["k69"], PropertyTree(1));
    EXPECT_EQ(tree["k06"], PropertyTree(64));
    EXPECT_EQ(tree["k05"], PropertyTree(65));
    EXPECT_EQ(tree["k00"], PropertyTree(70));
    Wide back;
    Reflected<Wide>::Read({back, tree.getMap(), &READ});
    EXPECT_TRUE(back == wide);
}

TEST(WideRecord, OmitsWhatHasNotChangedInEachWord)
{
    Wide wide;
    PropertyTree tree;
    Write(wide, tree, CHANGED);
    EXPECT_EQ(tree.getMap().size(), 0U);

    wide.values[0] = 5;  // the last key, "k69"
    wide.values[5] = 6;  // "k64", the first of the second word
    wide.values[6] = 7;  // "k63", the last of the first
    wide.values[69] = 8; // the first key, "k00"
    Write(wide, tree, CHANGED);
    PropertyTree expected;
    expected["k00"] = 8;
    expected["k63"] = 7;
    expected["k64"] = 6;
    expected["k69"] = 5;
    EXPECT_EQ(tree, expected);

    Write(Wide(), tree = PropertyTree(), ALL);
    EXPECT_EQ(tree.getMap().size(), 70U);
}

TEST(WideRecord, IsWrittenBesideWhatIsThere)
{
    Wide wide;
    wide.values[0] = 5;  // "k69"
    wide.values[69] = 8; // "k00"
    PropertyTree tree;
    tree["k69"] = "old";
    tree["k68"] = "stays";
    tree["other"] = true;
    const PropertyTree* const child = &tree["k69"];
    Write(wide, tree, CHANGED);
    PropertyTree expected;
    expected["k00"] = 8;
    expected["k68"] = "stays";
    expected["k69"] = 5;
    expected["other"] = true;
    EXPECT_EQ(tree, expected);
    EXPECT_EQ(&tree["k69"], child);
}

// The fields are written from "k69" down to "k00".
TEST(WideRecord, LeavesWhatItHasReachedWhenItFails)
{
    Wide wide;
    wide.values[2] = REFUSED; // "k67"
    PropertyTree tree;
    tree["k03"] = "old";
    tree["k65"] = "old";
    EXPECT_THROW(Write(wide, tree, ALL), std::runtime_error);
    PropertyTree expected;
    expected["k03"] = "old";
    expected["k65"] = "old";
    expected["k67"] = PropertyTree();
    expected["k68"] = 0;
    expected["k69"] = 0;
    EXPECT_EQ(tree, expected);
}

} // namespace
