#include "Inspection/TreeEditor.h"

#include "PropertyTree/PropertyTree.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace
{

using namespace Ombrel;
using namespace Ombrel::Inspection;

PropertyTree Numbers(std::size_t count)
{
    PropertyTree tree;
    tree.makeList();
    for (std::size_t index = 0; index != count; ++index)
    {
        tree.append(static_cast<int>(index));
    }
    return tree;
}

// A list of a list, and of a map that holds one, each so long that it is opened.
PropertyTree Nested()
{
    PropertyTree tree = Numbers(100);
    tree.getList()[3] = Numbers(200);
    tree.getList()[4] = PropertyTree();
    tree.getList()[4]["list"] = Numbers(300);
    tree.getList()[4]["zero"] = 0;
    tree.getList()[5] = Numbers(3);
    return tree;
}

void MovePlain(PropertyTree::List& list, std::size_t from, std::size_t to)
{
    PropertyTree element = list[from];
    list.erase(list.begin() + static_cast<std::ptrdiff_t>(from));
    list.insert(list.begin() + static_cast<std::ptrdiff_t>(to), std::move(element));
}

// All lists in a tree, by the steps to them.
void FindLists(const PropertyTree& tree, std::vector<PathStep>& steps, std::vector<std::vector<PathStep>>& lists)
{
    const auto descend = [&](const PropertyTree& child, const auto& step)
    {
        if (child.isMap() || child.isList())
        {
            steps.emplace_back(step);
            FindLists(child, steps, lists);
            steps.pop_back();
        }
    };
    if (tree.isMap())
    {
        for (const auto& [key, child] : tree.getMap())
        {
            descend(child, std::string(key));
        }
    }
    if (tree.isList())
    {
        lists.push_back(steps);
        for (std::size_t index = 0; index != tree.getList().size(); ++index)
        {
            descend(tree.getList()[index], index);
        }
    }
}

class Editing
{
public:
    explicit Editing(unsigned seed) : m_random(seed), m_plain(Nested()), m_edited(m_plain) {}

    void Step()
    {
        std::vector<std::vector<PathStep>> lists;
        std::vector<PathStep> way;
        FindLists(m_plain, way, lists);
        const std::vector<PathStep>& steps = lists[Any(lists.size())];
        PropertyTree& plain = const_cast<PropertyTree&>(*Find(m_plain, steps));
        PropertyTree& edited = *m_editor.Find(m_edited, steps);
        PropertyTree::List& list = plain.getList();
        ASSERT_EQ(m_editor.SizeOf(edited), list.size());
        const unsigned kind = static_cast<unsigned>(Any(8));
        if (kind < 2 || list.empty())
        {
            const std::size_t place = Any(list.size() + 1);
            const PropertyTree element = kind == 0 ? Numbers(Any(150)) : PropertyTree(static_cast<int>(Any(1000)));
            list.insert(list.begin() + static_cast<std::ptrdiff_t>(place), element);
            m_editor.Insert(edited, place, element);
        }
        else if (kind < 4)
        {
            const std::size_t from = Any(list.size());
            const std::size_t to = Any(list.size());
            MovePlain(list, from, to);
            m_editor.Move(edited, from, to);
        }
        else if (kind < 6 && list.size() > 60)
        {
            const std::size_t place = Any(list.size());
            PropertyTree removed = m_editor.Remove(edited, place);
            m_editor.Close(removed);
            EXPECT_TRUE(removed == list[place]);
            list.erase(list.begin() + static_cast<std::ptrdiff_t>(place));
        }
        else if (kind == 6)
        {
            const PathStep place(Any(list.size()));
            const PropertyTree value = Any(2) == 0 ? Numbers(Any(100)) : PropertyTree("text");
            list[std::get<std::size_t>(place)] = value;
            EXPECT_TRUE(m_editor.Put(edited, Steps(&place, 1), value));
        }
        else
        {
            PropertyTree copy;
            EXPECT_TRUE(m_editor.Plain(edited, copy) == plain);
        }
    }

    void Check()
    {
        m_editor.Close(m_edited);
        EXPECT_TRUE(m_edited == m_plain);
    }

private:
    std::size_t Any(std::size_t count) { return m_random() % count; }

    std::mt19937 m_random;
    PropertyTree m_plain;
    PropertyTree m_edited;
    TreeEditor m_editor;
};

TEST(TreeEditor, ChangesListsAsIfTheyWereChangedInPlace)
{
    for (unsigned seed = 0; seed != 20; ++seed)
    {
        SCOPED_TRACE(seed);
        Editing editing(seed);
        for (int step = 0; step != 200 && !::testing::Test::HasFailure(); ++step)
        {
            editing.Step();
            if (step % 50 == 49)
            {
                editing.Check();
            }
        }
    }
}

// A map that gets a key may lay its entries elsewhere.
TEST(TreeEditor, FindsAnOpenListWhereItHasMoved)
{
    PropertyTree tree;
    tree["list"] = Numbers(100);
    TreeEditor editor;
    editor.Remove(tree["list"], 0);
    for (int key = 0; key != 100; ++key)
    {
        tree["k" + std::to_string(key)] = key;
    }
    EXPECT_EQ(editor.SizeOf(tree["list"]), 99u);
    PropertyTree elsewhere = std::move(tree);
    const PathStep steps[] = {PathStep(std::string("list")), PathStep(std::size_t(0))};
    ASSERT_TRUE(editor.Find(elsewhere, steps));
    EXPECT_EQ(editor.Find(elsewhere, steps)->getScalar().toInt(), 1);
    editor.Close(elsewhere);
    EXPECT_EQ(elsewhere["list"].getList().size(), 99u);
}

TEST(ElementOrder, IsThatOfAListWithTheSameSteps)
{
    for (const std::size_t size : {0u, 1u, 511u, 512u, 513u, 5000u})
    {
        std::mt19937 random(static_cast<unsigned>(size));
        std::vector<std::size_t> plain;
        for (std::size_t element = 0; element != size; ++element)
        {
            plain.push_back(element);
        }
        ElementOrder order(size);
        EXPECT_EQ(order.All(), plain);
        for (std::size_t step = 0; step != 6000; ++step)
        {
            // Grows, then shrinks to nothing and beyond.
            const bool isInserted = plain.empty() || random() % 10 < (step < 2500 ? 9u : 1u);
            const std::size_t place = random() % (plain.size() + (isInserted ? 1 : 0));
            if (isInserted)
            {
                plain.insert(plain.begin() + static_cast<std::ptrdiff_t>(place), step);
                order.Insert(place, step);
            }
            else
            {
                ASSERT_EQ(order.At(place), plain[place]);
                ASSERT_EQ(order.Remove(place), plain[place]);
                plain.erase(plain.begin() + static_cast<std::ptrdiff_t>(place));
            }
            ASSERT_EQ(order.Size(), plain.size());
        }
        EXPECT_EQ(order.All(), plain);
    }
}

} // namespace
