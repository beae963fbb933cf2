#include "Samples.h"
#include "support/FailingMemory.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <new>
#include <stdexcept>

namespace
{

// One of its values cannot be had.
struct Stubborn
{
    void Set(int) {}
    int Get() const { return 1; }
    int Refuse() const { throw std::logic_error("no value"); }
};

// Its second key takes memory, and nothing else does.
struct LongKeyLast
{
    int m_first = 0;
    int m_lastOfMoreThanFifteenCharacters = 0;
};

} // namespace

namespace Ombrel::Proc
{

template <> struct Fields<Stubborn>
{
    using R = Stubborn;
    using List = FieldList<AccessorDescriptor<"m", &R::Set, &R::Get>, AccessorDescriptor<"z", &R::Set, &R::Get>,
                           AccessorDescriptor<"a", &R::Set, &R::Refuse>, AccessorDescriptor<"b", &R::Set, &R::Get>>;
};

template <> struct Fields<LongKeyLast>
{
    using R = LongKeyLast;
    using List = FieldList<FieldDescriptor<&R::m_first>, FieldDescriptor<&R::m_lastOfMoreThanFifteenCharacters>>;
};

} // namespace Ombrel::Proc

namespace
{

using namespace Samples;
using Ombrel::PropertyTree;
using Ombrel::Proc::Reflected;
using Support::List;
using Support::Map;

Everything Changed()
{
    Everything record;
    record.m_int32 = -11;
    record.m_uint32 = 4000000000;
    record.m_uint8 = 200;
    record.m_int64 = -5000000000;
    record.m_uint64 = 6000000000;
    record.m_float64 = 0.1;
    record.m_float32 = 0.1f;
    record.m_bool = false;
    record.m_string = "other";
    record.m_enum = Channel::Alpha;
    record.m_record = {{-1, 5}};
    record.m_pair = {{1, 3}, 0};
    record.m_points = {{0, 5}, {0, 0}};
    record.m_channels = {Channel::Red, Channel::Red};
    record.m_rows = {{1}, {}};
    record.m_set = {Channel::Alpha, Channel::Red};
    return record;
}

PropertyTree ChangedForm()
{
    return Map({
        {"int32", -11},
        {"uint32", 4000000000},
        {"uint8", 200},
        {"int64", -5000000000},
        {"uint64", 6000000000},
        {"float64", 0.1},
        {"float32", static_cast<double>(0.1f)},
        {"bool", false},
        {"string", "other"},
        {"enum", "Alpha"},
        // Within the pupil, the point is compared with the pupil's own default; within the point, each coordinate with a
        // point's: so the -1 is written although the default pupil has it too.
        {"record", Map({{"point", Map({{"x", -1}, {"y", 5}})}})},
        {"pair", Map({{"first", Map({{"x", 1}, {"y", 3}})}})},
        {"points", List({Map({{"y", 5}}), Map({})})},
        {"channels", List({"Red", "Red"})},
        {"rows", List({List({1}), List({})})},
        {"set", List({"Red", "Alpha"})},
    });
}

TEST(Folds, WriteEveryKindThatDiffers)
{
    EXPECT_EQ(TreeOf(Changed()), ChangedForm());
}

TEST(Folds, ReadBackWhatTheyWrote)
{
    Everything record;
    Read(record, ChangedForm());
    EXPECT_TRUE(Reflected<Everything>::Equal(record, Changed()));
    EXPECT_EQ(TreeOf(record), ChangedForm());
}

TEST(Folds, ADefaultRecordIsAnEmptyMap)
{
    EXPECT_EQ(TreeOf(Everything()), Map({}));
}

TEST(Folds, AnEmptyMapGivesTheDefaultRecord)
{
    Everything record = Changed();
    Read(record, Map({}));
    EXPECT_TRUE(Reflected<Everything>::Equal(record, Everything()));
    EXPECT_EQ(record.m_record.m_point, (Point{7, 8}));
}

TEST(Folds, WithoutResetAMissingKeyLeavesItsField)
{
    Everything record = Changed();
    Read(record, Map({{"uint8", 1}}), false);
    Everything expected = Changed();
    expected.m_uint8 = 1;
    EXPECT_TRUE(Reflected<Everything>::Equal(record, expected));
}

TEST(Folds, TheResetReachesNestedRecords)
{
    Everything record = Changed();
    Read(record, Map({{"record", Map({})}, {"pair", Map({{"second", 9}})}}));
    EXPECT_EQ(record.m_record.m_point, (Point{-1, -1})); // the pupil's own default, not the one it has in the record
    EXPECT_EQ(record.m_pair, (std::pair<Point, std::int32_t>{{0, 0}, 9}));

    Read(record, Map({{"record", Map({{"point", Map({})}})}}));
    EXPECT_EQ(record.m_record.m_point, (Point{0, 0})); // and a point's own, not the one it has in the pupil

    record = Changed();
    Read(record, Map({{"record", Map({{"point", Map({{"x", 4}})}})}}), false);
    EXPECT_EQ(record.m_record.m_point, (Point{4, 5}));
}

TEST(Folds, WithoutResetAListElementKeepsItsZeros)
{
    Everything record = Changed();
    Read(record, Map({{"points", List({Map({{"y", 2}})})}}), false);
    EXPECT_EQ(record.m_points, (std::vector<Point>{{0, 2}}));
}

TEST(Folds, UnknownKeysAreDropped)
{
    Everything record;
    Read(record, Map({{"radius", 3}, {"uint8", 9}, {"Uint8", 1}, {"uint", 1}, {"uint88", 1}}));
    EXPECT_EQ(TreeOf(record), Map({{"uint8", 9}}));
}

TEST(Folds, ANaNIsAlwaysWrittenAndANegativeZeroNever)
{
    Everything record;
    record.m_float64 = std::nan("");
    record.m_float32 = std::nanf("");
    const PropertyTree tree = TreeOf(record);
    EXPECT_EQ(tree.getMap().size(), 2u);
    EXPECT_TRUE(std::isnan(tree["float64"].getScalar().toDouble()));

    Level level;
    level.m_level = -0.0;
    EXPECT_EQ(TreeOf(level), Map({}));
}

TEST(Folds, WithoutOmissionEverythingIsWritten)
{
    const PropertyTree tree = TreeOf(Everything(), false);
    EXPECT_EQ(tree.getMap().size(), 16u);
    EXPECT_EQ(tree["record"], Map({{"point", Map({{"x", 7}, {"y", 8}})}}));
    EXPECT_EQ(tree["pair"], Map({{"first", Map({{"x", 1}, {"y", 2}})}, {"second", 3}}));
    EXPECT_EQ(tree["points"], List({}));
    EXPECT_EQ(tree["set"], List({}));
    EXPECT_EQ(tree["uint64"], PropertyTree(5));
}

TEST(Folds, WithoutResetOfTargetsOldEntriesStay)
{
    PropertyTree tree = Map({{"int32", 77}, {"stray", 1}, {"record", Map({{"old", 2}})}, {"points", List({1, 2, 3, 4})}});
    Everything record;
    record.m_record = {{1, 1}};
    record.m_points = {{1, 1}};
    Write(record, tree, true, false);
    EXPECT_EQ(tree, Map({{"int32", 77}, // equals its default, so it is skipped and what stood there stays
                         {"stray", 1},
                         {"record", Map({{"old", 2}, {"point", Map({{"x", 1}, {"y", 1}})}})},
                         {"points", List({Map({{"x", 1}, {"y", 1}})})}})); // a list is emptied whatever the flags say

    Write(record, tree, true, true);
    EXPECT_EQ(tree["record"], Map({{"point", Map({{"x", 1}, {"y", 1}})}}));
}

TEST(Folds, WriteInDeclarationOrder)
{
    PropertyTree tree;
    EXPECT_THROW(Write(Stubborn(), tree, false), std::logic_error);
    EXPECT_EQ(tree, Map({{"m", 1}, {"z", 1}, {"a", PropertyTree()}})); // and not "b"

    tree = Map({{"a", 2}, {"b", 3}, {"stray", 4}, {"z", 5}});
    EXPECT_THROW(Write(Stubborn(), tree, false, false), std::logic_error);
    EXPECT_EQ(tree, Map({{"m", 1}, {"z", 1}, {"a", 2}, {"b", 3}, {"stray", 4}}));
}

TEST(Folds, AWriteWithoutMemoryLeavesNoEmptyFields)
{
    const Everything record = Changed();
    const PropertyTree whole = TreeOf(record);
    std::size_t successes = 0;
    for (bool isDone = false; !isDone; ++successes)
    {
        PropertyTree tree = Map({});
        try
        {
            const Support::FailingMemory failing(successes, Support::FailingMemory::Mode::Once);
            Write(record, tree);
            isDone = true;
        }
        catch (const std::bad_alloc&)
        {
            std::size_t unfinished = 0; // the field in which the memory ran out
            for (const auto& [key, child] : tree.getMap())
            {
                unfinished += child == whole[key] ? 0U : 1U;
            }
            ASSERT_LE(unfinished, 1u) << successes;
        }
    }
    EXPECT_GT(successes, 10u);
}

TEST(Folds, AWriteWithoutMemoryForAKeyLeavesTheMapAsItWas)
{
    const LongKeyLast record{1, 2};
    for (const PropertyTree& before : {Map({}), Map({{"zero", 0}})})
    {
        std::size_t successes = 0;
        for (bool isDone = false; !isDone; ++successes)
        {
            PropertyTree tree = before;
            try
            {
                const Support::FailingMemory failing(successes, Support::FailingMemory::Mode::Once);
                Write(record, tree);
                isDone = true;
            }
            catch (const std::bad_alloc&)
            {
                EXPECT_EQ(tree, before) << successes;
            }
        }
        EXPECT_GE(successes, 3u) << "neither the room nor the key failed";
    }
}

TEST(Folds, AFailureStopsWhereItStands)
{
    Everything record;
    PropertyTree tree = ChangedForm();
    tree["float64"] = "no number";
    EXPECT_THROW(Read(record, tree), std::invalid_argument);

    Everything expected;
    expected.m_int32 = -11;
    expected.m_uint32 = 4000000000;
    expected.m_uint8 = 200;
    expected.m_int64 = -5000000000;
    expected.m_uint64 = 6000000000;
    EXPECT_TRUE(Reflected<Everything>::Equal(record, expected));
}

TEST(Folds, AFailureInsideANestedRecordKeepsWhatWasRead)
{
    Everything record;
    EXPECT_THROW(Read(record, Map({{"pair", Map({{"first", Map({{"x", 9}})}, {"second", "no number"}})}})),
                 std::invalid_argument);
    EXPECT_EQ(record.m_pair, (std::pair<Point, std::int32_t>{{9, 0}, 3}));
}

TEST(Folds, PropertiesGoThroughTheirSetterOnce)
{
    Properties record;
    Read(record, Map({{"value", 500}}), false);
    EXPECT_EQ(record.m_calls, 1);
    EXPECT_EQ(record.GetValue(), 100); // the record keeps its own view
    EXPECT_EQ(TreeOf(record), Map({{"value", 100}}));

    record.m_calls = 0;
    Read(record, Map({}));
    EXPECT_EQ(record.m_calls, 4); // the default too goes through each setter
    EXPECT_EQ(record.GetValue(), 5);
    EXPECT_EQ(record.GetPoints(), (std::vector<Point>{{1, 1}}));
    EXPECT_EQ(record.GetChannels(), (std::set<Channel>{Channel::Red}));
    EXPECT_EQ(record.GetPoint(), (Point{3, 4}));
}

TEST(Folds, AContainerPropertyIsSetEmptyByAnythingButAList)
{
    Properties record;
    Read(record, Map({{"points", 5}, {"channels", Map({})}}), false);
    EXPECT_EQ(record.m_calls, 2);
    EXPECT_TRUE(record.GetPoints().empty());
    EXPECT_TRUE(record.GetChannels().empty());
    EXPECT_EQ(TreeOf(record), Map({{"points", List({})}, {"channels", List({})}}));
}

TEST(Folds, AFailingElementLeavesAPropertyUntouched)
{
    Properties record;
    EXPECT_THROW(Read(record, Map({{"points", List({Map({{"x", 9}}), 5})}}), false), std::invalid_argument);
    EXPECT_EQ(record.m_calls, 0);
    EXPECT_EQ(record.GetPoints(), (std::vector<Point>{{1, 1}}));
}

TEST(Folds, PropertiesOfEveryKindComeBack)
{
    Properties record;
    record.SetPoints({{1, 0}, {0, 0}});
    record.SetChannels({Channel::Green, Channel::Alpha});
    record.SetPoint({0, 9});
    const PropertyTree tree = TreeOf(record);
    EXPECT_EQ(tree, Map({{"points", List({Map({{"x", 1}}), Map({})})},
                         {"channels", List({"Green", "Alpha"})},
                         {"point", Map({{"y", 9}})}}));
    Properties restored;
    Read(restored, tree);
    EXPECT_TRUE(Reflected<Properties>::Equal(record, restored));
}

TEST(Folds, ARecordMaySayItsDefaultItself)
{
    EXPECT_EQ(Reflected<Made>::Default().m_value, 42);
    Made record(1);
    EXPECT_EQ(TreeOf(record), Map({{"value", 1}}));
    Read(record, Map({}));
    EXPECT_EQ(record.m_value, 42);
}

TEST(Folds, ThereIsOneDefaultPerType)
{
    EXPECT_EQ(&Reflected<Point>::Default(), &Reflected<Point>::Default());
    EXPECT_EQ(Reflected<Point>::Default(), Point());
}

} // namespace
