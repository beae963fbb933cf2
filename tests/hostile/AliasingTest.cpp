#include "PropertyTree/PropertyTree.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

// A tree that is assigned from a part of itself must not read what the assignment has destroyed: each of these equals copying
// the part first and assigning the copy then.
namespace
{

using Ombrel::PropertyTree;
using Support::List;
using Support::Map;

// Too long to stand in a string itself, so that reading it late would read memory that was given back.
constexpr const char* TEXT = "a text of more characters than a string keeps in itself";

PropertyTree Sample()
{
    return Map({
        {"list", List({1, TEXT, Map({{"x", List({2, TEXT})}})})},
        {"map", Map({{"deep", Map({{"number", 3}, {"text", TEXT}})}})},
    });
}

struct Case
{
    const char* name;
    void (*change)(PropertyTree& tree);
    PropertyTree expected;
};

void PrintTo(const Case& row, std::ostream* out)
{
    *out << row.name;
}

PropertyTree::List& ListOf(PropertyTree& tree)
{
    return tree["list"].getList();
}

const Case ASSIGNMENTS[] = {
    {"ChildCopied", [](PropertyTree& tree) { tree = tree["map"]; }, Map({{"deep", Map({{"number", 3}, {"text", TEXT}})}})},
    {"ChildMoved", [](PropertyTree& tree) { tree = std::move(tree["map"]); },
     Map({{"deep", Map({{"number", 3}, {"text", TEXT}})}})},
    {"GrandchildCopied", [](PropertyTree& tree) { tree = tree["map"]["deep"]; }, Map({{"number", 3}, {"text", TEXT}})},
    {"GrandchildMoved", [](PropertyTree& tree) { tree = std::move(tree["map"]["deep"]); },
     Map({{"number", 3}, {"text", TEXT}})},
    {"GrandchildsScalar", [](PropertyTree& tree) { tree = tree["map"]["deep"]["text"].getScalar(); }, TEXT},
    {"GrandchildsScalarMoved", [](PropertyTree& tree) { tree = std::move(tree["map"]["deep"]["text"]); }, TEXT},
    {"GrandchildsString", [](PropertyTree& tree) { tree = tree["map"]["deep"]["text"].getScalar().toString(); }, TEXT},
    {"GrandchildsCString", [](PropertyTree& tree) { tree = tree["map"]["deep"]["text"].getScalar().toCString(); }, TEXT},
    {"ElementCopied", [](PropertyTree& tree) { tree = ListOf(tree)[2]; }, Map({{"x", List({2, TEXT})}})},
    {"ElementMoved", [](PropertyTree& tree) { tree = std::move(ListOf(tree)[2]); }, Map({{"x", List({2, TEXT})}})},
    {"ItselfCopied",
     [](PropertyTree& tree)
     {
         const PropertyTree& self = tree;
         tree = self;
     },
     Sample()},
    {"ItselfMoved",
     [](PropertyTree& tree)
     {
         PropertyTree& self = tree;
         tree = std::move(self);
     },
     Sample()},
    {"ListFromItsElementCopied", [](PropertyTree& tree) { tree["list"] = ListOf(tree)[1]; },
     Map({{"list", TEXT}, {"map", Map({{"deep", Map({{"number", 3}, {"text", TEXT}})}})}})},
    {"ListFromItsElementMoved", [](PropertyTree& tree) { tree["list"] = std::move(ListOf(tree)[2]); },
     Map({{"list", Map({{"x", List({2, TEXT})}})}, {"map", Map({{"deep", Map({{"number", 3}, {"text", TEXT}})}})}})},
    {"ElementFromItsNeighbourCopied", [](PropertyTree& tree) { ListOf(tree)[0] = ListOf(tree)[2]; },
     Map({{"list", List({Map({{"x", List({2, TEXT})}}), TEXT, Map({{"x", List({2, TEXT})}})})},
          {"map", Map({{"deep", Map({{"number", 3}, {"text", TEXT}})}})}})},
    {"ElementFromItsNeighbourMoved", [](PropertyTree& tree) { ListOf(tree)[0] = std::move(ListOf(tree)[2]); },
     Map({{"list", List({Map({{"x", List({2, TEXT})}}), TEXT, PropertyTree()})},
          {"map", Map({{"deep", Map({{"number", 3}, {"text", TEXT}})}})}})},
    {"ChildFromTheWholeCopied", [](PropertyTree& tree) { tree["map"] = tree; },
     Map({{"list", List({1, TEXT, Map({{"x", List({2, TEXT})}})})}, {"map", Sample()}})},
};

static_assert(std::size(ASSIGNMENTS) == 17);

// What else takes a tree, a key or a text, given one that stands in the tree that changes.
const Case OTHERS[] = {
    {"AppendedElement", [](PropertyTree& tree) { tree["list"].append(ListOf(tree)[1]); },
     Map({{"list", List({1, TEXT, Map({{"x", List({2, TEXT})}}), TEXT})},
          {"map", Map({{"deep", Map({{"number", 3}, {"text", TEXT}})}})}})},
    {"AppendedElementMoved", [](PropertyTree& tree) { tree["list"].append(std::move(ListOf(tree)[1])); },
     Map({{"list", List({1, PropertyTree(), Map({{"x", List({2, TEXT})}}), TEXT})},
          {"map", Map({{"deep", Map({{"number", 3}, {"text", TEXT}})}})}})},
    {"AppendedItself", [](PropertyTree& tree) { tree["list"].append(tree["list"]); },
     Map({{"list", List({1, TEXT, Map({{"x", List({2, TEXT})}}), List({1, TEXT, Map({{"x", List({2, TEXT})}})})})},
          {"map", Map({{"deep", Map({{"number", 3}, {"text", TEXT}})}})}})},
    {"AppendedItselfMoved", [](PropertyTree& tree) { tree["list"].append(std::move(tree["list"])); },
     Map({{"list", List({List({1, TEXT, Map({{"x", List({2, TEXT})}})})})},
          {"map", Map({{"deep", Map({{"number", 3}, {"text", TEXT}})}})}})},
    {"SwappedWithItself", [](PropertyTree& tree) { tree.swap(tree); }, Sample()},
    {"MapFromItsChildsMapCopied", [](PropertyTree& tree) { tree.getMap() = tree["map"].getMap(); },
     Map({{"deep", Map({{"number", 3}, {"text", TEXT}})}})},
    {"MapFromItsChildsMapMoved", [](PropertyTree& tree) { tree.getMap() = std::move(tree["map"].getMap()); },
     Map({{"deep", Map({{"number", 3}, {"text", TEXT}})}})},
    {"MapFromItselfMoved",
     [](PropertyTree& tree)
     {
         PropertyTree::Map& self = tree.getMap();
         tree.getMap() = std::move(self);
     },
     Sample()},
    {"EmplacedFromItsOwnEntry", [](PropertyTree& tree) { tree.getMap().try_emplace("aa", std::move(tree["map"]["deep"])); },
     Map({{"aa", Map({{"number", 3}, {"text", TEXT}})},
          {"list", List({1, TEXT, Map({{"x", List({2, TEXT})}})})},
          {"map", Map({{"deep", PropertyTree()}})}})},
    {"NewChildFromAChild", [](PropertyTree& tree) { tree["aa"] = tree["map"]; },
     Map({{"aa", Map({{"deep", Map({{"number", 3}, {"text", TEXT}})}})},
          {"list", List({1, TEXT, Map({{"x", List({2, TEXT})}})})},
          {"map", Map({{"deep", Map({{"number", 3}, {"text", TEXT}})}})}})},
    {"ScalarFromItself",
     [](PropertyTree& tree)
     {
         tree = TEXT;
         tree = tree.getScalar();
         tree = tree.getScalar().toString();
         tree = tree.getScalar().toCString();
     },
     TEXT},
    {"InsertedUnderItsOwnText",
     [](PropertyTree& tree)
     {
         PropertyTree& deep = tree["map"]["deep"];
         deep[deep["text"].getScalar().toString()] = 4;
     },
     Map({{"list", List({1, TEXT, Map({{"x", List({2, TEXT})}})})},
          {"map", Map({{"deep", Map({{TEXT, 4}, {"number", 3}, {"text", TEXT}})}})}})},
    {"ErasedByItsOwnKey", [](PropertyTree& tree) { tree.getMap().erase(tree.getMap().begin()->first); },
     Map({{"map", Map({{"deep", Map({{"number", 3}, {"text", TEXT}})}})}})},
};

class AliasingTest : public testing::TestWithParam<Case>
{
};

TEST_P(AliasingTest, EqualsCopyingFirst)
{
    PropertyTree tree = Sample();
    GetParam().change(tree);
    EXPECT_EQ(tree, GetParam().expected);
}

std::string NameOf(const testing::TestParamInfo<Case>& row)
{
    return row.param.name;
}

INSTANTIATE_TEST_SUITE_P(Assignments, AliasingTest, testing::ValuesIn(ASSIGNMENTS), NameOf);
INSTANTIATE_TEST_SUITE_P(Others, AliasingTest, testing::ValuesIn(OTHERS), NameOf);

// A part that lies deeper than what is copied and destroyed by recursion.
TEST(AliasingDeep, EqualsCopyingFirst)
{
    PropertyTree tree = TEXT;
    for (int level = 0; level < 1000; ++level)
    {
        PropertyTree outer;
        outer.append(std::move(tree));
        tree = std::move(outer);
    }
    const auto innermost = [](PropertyTree& outer)
    {
        PropertyTree* inner = &outer;
        while (inner->isList())
        {
            inner = &inner->getList().front();
        }
        return inner;
    };
    PropertyTree copied = tree;
    copied = *innermost(copied);
    EXPECT_EQ(copied, PropertyTree(TEXT));
    tree = std::move(*innermost(tree));
    EXPECT_EQ(tree, PropertyTree(TEXT));
}

} // namespace
