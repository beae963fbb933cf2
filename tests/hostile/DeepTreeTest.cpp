#include "PropertyTree/PropertyTree.h"
#include "support/FailingMemory.h"
#include "support/SmallStack.h"

#include <gtest/gtest.h>

#include <ostream>

// Trees a million levels deep: whoever copies, compares or destroys what was stored must not be ended by its nesting.
namespace
{

using Ombrel::PropertyTree;

constexpr int DEPTH = 1'000'000;
constexpr std::size_t STACK = 256 * 1024;

enum class Shape
{
    Lists,
    Maps,
    Mixed,
    WithSiblings, // each level has children on both sides of the deep one
    Zigzag,       // the deep child is now the first and now the last
    Branching,    // behind the deep child stands another that has a child
};

void PrintTo(Shape shape, std::ostream* out)
{
    constexpr const char* names[] = {"lists", "maps", "mixed", "with siblings", "zigzag", "branching"};
    *out << names[static_cast<int>(shape)];
}

bool IsListLevel(Shape shape, int level)
{
    return shape == Shape::Lists || (shape != Shape::Maps && level % 3 != 0);
}

PropertyTree Wrap(PropertyTree inner, Shape shape, int level)
{
    const bool hasFirst = shape == Shape::WithSiblings || (shape == Shape::Zigzag && level % 2 == 0);
    const bool hasLast =
        shape == Shape::WithSiblings || shape == Shape::Branching || (shape == Shape::Zigzag && level % 2 != 0);
    PropertyTree last;
    if (shape == Shape::Branching)
    {
        last.append(level);
    }
    else
    {
        last = level;
    }
    PropertyTree outer;
    if (IsListLevel(shape, level))
    {
        if (hasFirst)
        {
            outer.append(level);
        }
        outer.append(std::move(inner));
        if (hasLast)
        {
            outer.append(std::move(last));
        }
        return outer;
    }
    if (hasFirst)
    {
        outer["a"] = level;
    }
    outer["k"] = std::move(inner);
    if (hasLast)
    {
        outer["z"] = std::move(last);
    }
    return outer;
}

PropertyTree Deep(Shape shape)
{
    PropertyTree tree("the innermost");
    for (int level = 0; level < DEPTH; ++level)
    {
        tree = Wrap(std::move(tree), shape, level);
    }
    return tree;
}

class PropertyTreeDepth : public testing::TestWithParam<Shape>
{
};

TEST_P(PropertyTreeDepth, NeedsNoStackAndDestroyingNoMemory)
{
    Support::RunOnStack(STACK,
                        []
                        {
                            PropertyTree tree = Deep(GetParam());
                            PropertyTree copy = tree;
                            EXPECT_TRUE(copy == tree);
                            PropertyTree moved = std::move(copy);
                            copy = moved;
                            EXPECT_TRUE(copy == tree);
                            copy = std::move(moved);

                            const Support::FailingMemory failing; // from here on no allocation succeeds
                            tree = PropertyTree();
                            copy.convertToMap();
                        });
}

INSTANTIATE_TEST_SUITE_P(Shapes, PropertyTreeDepth,
                         testing::Values(Shape::Lists, Shape::Maps, Shape::Mixed, Shape::WithSiblings, Shape::Zigzag,
                                         Shape::Branching));

TEST(PropertyTreeWide, DestroyingABushNeedsNoMemory)
{
    PropertyTree bush;
    for (int i = 0; i < 50; ++i)
    {
        PropertyTree branch;
        for (int j = 0; j < 50; ++j)
        {
            branch[std::to_string(j)].append(j);
            branch[std::to_string(j)].append(PropertyTree());
        }
        bush.append(std::move(branch));
    }
    PropertyTree copy = bush;
    const Support::FailingMemory failing;
    bush = PropertyTree();
    copy.getList().erase(copy.getList().begin());
    copy.getList().front().getMap().clear();
}

} // namespace
