#ifndef OMBREL_TESTS_COMPONENTS_PROPERTY_TREE_MAP_TWINS_H
#define OMBREL_TESTS_COMPONENTS_PROPERTY_TREE_MAP_TWINS_H

#include "PropertyTree/PropertyTree.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <iterator>
#include <map>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace Support
{

/// The map of a tree and a `std::map` that get the same steps, with iterators into both that are held through all of them.
class MapTwins
{
public:
    using Map = Ombrel::PropertyTree::Map;
    using Model = std::map<std::string, int, std::less<>>;
    using Random = std::mt19937;

    explicit MapTwins(Random& random) : m_random(random) {}

    void Reserve(std::size_t count) { m_map.reserve(count); }

    void Insert(const std::string& key, int value)
    {
        const bool isNew = !m_model.contains(key);
        const Ombrel::PropertyTree tree(value);
        std::pair<Map::iterator, bool> result(m_map.end(), isNew);
        switch (m_random() % 6)
        {
        case 0:
            EXPECT_EQ(m_map[key].isNull(), isNew) << key;
            m_map[key] = value;
            m_model[key] = value;
            result.first = m_map.find(key);
            break;
        case 1:
            result = m_map.try_emplace(key, value);
            m_model.try_emplace(key, value);
            break;
        case 2:
            result = m_map.try_emplace(key, tree);
            m_model.try_emplace(key, value);
            break;
        case 3:
            result = m_random() % 2 == 0 ? m_map.insert_or_assign(key, value) : m_map.insert_or_assign(key, tree);
            m_model.insert_or_assign(key, value);
            break;
        case 4:
            result = m_random() % 2 == 0 ? m_map.emplace(key, value) : m_map.emplace(Map::value_type(key, tree));
            m_model.emplace(key, value);
            break;
        default:
            result = m_map.insert({key, value});
            m_model.insert({key, value});
            break;
        }
        EXPECT_EQ(result.second, isNew) << key;
        ASSERT_NE(result.first, m_map.end()) << key;
        EXPECT_EQ(result.first->first, key);
        EXPECT_EQ(result.first->second, Ombrel::PropertyTree(m_model.at(key))) << key;
        m_entries.try_emplace(key, &*result.first);
        Hold(result.first);
    }

    void Erase(const std::string& key)
    {
        const auto expected = m_model.find(key);
        const auto found = m_map.find(key);
        ASSERT_EQ(found == m_map.end(), expected == m_model.end()) << key;
        LetGo(key);
        if (expected == m_model.end() || m_random() % 3 == 0)
        {
            EXPECT_EQ(m_map.erase(key), m_model.erase(key)) << key;
        }
        else if (m_random() % 2 == 0)
        {
            const auto next = m_map.erase(found);
            const auto expectedNext = m_model.erase(expected);
            CompareAround(next, expectedNext);
            Hold(next);
        }
        else
        {
            auto next = found;
            auto expectedNext = expected;
            m_map.erase(next++);
            m_model.erase(expectedNext++);
            CompareAround(next, expectedNext);
        }
        m_entries.erase(key);
    }

    void Find(const std::string& key)
    {
        const auto expected = m_model.find(key);
        EXPECT_EQ(m_map.contains(key), expected != m_model.end()) << key;
        EXPECT_EQ(m_map.count(key), m_model.count(key)) << key;
        CompareAround(m_map.lower_bound(key), m_model.lower_bound(key));
        CompareAround(m_map.upper_bound(key), m_model.upper_bound(key));
        EXPECT_EQ(std::as_const(m_map).lower_bound(key), m_map.lower_bound(key)) << key;
        EXPECT_EQ(std::as_const(m_map).upper_bound(key), m_map.upper_bound(key)) << key;
        EXPECT_EQ(m_map.equal_range(key), std::pair(m_map.lower_bound(key), m_map.upper_bound(key))) << key;
        EXPECT_EQ(std::as_const(m_map).equal_range(key).second, m_map.upper_bound(key)) << key;
        if (expected != m_model.end())
        {
            EXPECT_EQ(std::as_const(m_map).find(key)->first, key);
            EXPECT_EQ(m_map.at(key), Ombrel::PropertyTree(expected->second)) << key;
        }
    }

    // What concerns the map as a whole or much of it.
    void Handle()
    {
        Map other;
        switch (m_random() % 8)
        {
        case 0: // the entries of the copy are other ones
            other = m_map;
            EXPECT_EQ(other, m_map);
            m_map = other;
            NoteEntries();
            break;
        case 1: // while they are another map's, iterators step through that one
            other = std::move(m_map);
            EXPECT_TRUE(m_map.empty());
            CompareHeld(other);
            m_map = Map(std::move(other));
            m_end = m_map.end();
            break;
        case 2:
            other["other"] = 1;
            swap(m_map, other);
            EXPECT_EQ(m_map.size(), 1u);
            CompareHeld(other);
            m_map.swap(other);
            m_end = m_map.end();
            break;
        case 3:
            m_map.reserve(m_random() % 2000);
            break;
        case 4: // from both ends, as many as half
            for (auto count = m_map.size() / 4; count != 0; --count)
            {
                Erase(std::string(m_map.begin()->first));
                Erase(std::string(std::prev(m_map.end())->first));
            }
            break;
        case 5:
            EraseRange();
            break;
        case 6:
            EraseIf(static_cast<int>(m_random() % 7 + 2));
            break;
        default:
            if (m_random() % 4 == 0)
            {
                m_map.clear();
                m_model.clear();
                m_entries.clear();
                m_held.clear();
                m_end = m_map.end();
            }
            break;
        }
    }

    void Compare() const
    {
        ASSERT_EQ(m_map.size(), m_model.size());
        auto position = m_map.begin();
        for (const auto& [key, value] : m_model)
        {
            ASSERT_NE(position, m_map.end()) << key;
            ASSERT_EQ(position->first, key);
            ASSERT_EQ(position->second, Ombrel::PropertyTree(value)) << key;
            ASSERT_EQ(&*position, m_entries.at(key)) << key << " has moved";
            ++position;
        }
        ASSERT_EQ(position, m_map.end());
        auto back = m_map.rbegin();
        for (auto expected = m_model.rbegin(); expected != m_model.rend(); ++expected)
        {
            ASSERT_EQ(back->first, expected->first);
            ++back;
        }
        ASSERT_EQ(back, m_map.rend());
        CompareHeld(m_map);
    }

    /// Steps from one of the iterators that are held.
    void CompareOneHeld() const
    {
        if (!m_held.empty())
        {
            const Held& held = m_held[m_random() % m_held.size()];
            CompareSteps(m_map, held.position, held.expected, m_random() % 3);
        }
        if (m_random() % 8 == 0)
        {
            CompareSteps(m_map, m_end, m_model.end(), 1);
        }
    }

private:
    struct Held
    {
        Map::iterator position;
        Model::const_iterator expected;
    };

    // Steps in both directions from copies of the iterators, so that what the held one knows about its place becomes outdated.
    void CompareSteps(const Map& map, Map::const_iterator position, Model::const_iterator expected, std::size_t steps) const
    {
        Map::const_iterator back = position;
        Model::const_iterator expectedBack = expected;
        CompareEntry(map, position, expected);
        for (std::size_t step = 0; step != steps && expected != m_model.end(); ++step)
        {
            CompareEntry(map, ++position, ++expected);
        }
        for (std::size_t step = 0; step != steps && expectedBack != m_model.begin(); ++step)
        {
            CompareEntry(map, --back, --expectedBack);
        }
        EXPECT_EQ(back == map.begin(), expectedBack == m_model.begin());
    }

    void CompareEntry(const Map& map, Map::const_iterator position, Model::const_iterator expected) const
    {
        ASSERT_EQ(position == map.end(), expected == m_model.end());
        if (expected != m_model.end())
        {
            ASSERT_EQ(&*position, m_entries.at(expected->first)) << expected->first << " expected, not " << position->first;
        }
    }

    void CompareAround(Map::iterator position, Model::const_iterator expected) const
    {
        CompareSteps(m_map, position, expected, 1);
    }

    void CompareHeld(const Map& map) const
    {
        for (const Held& held : m_held)
        {
            CompareSteps(map, held.position, held.expected, 3);
        }
        if (&map == &m_map)
        {
            CompareSteps(map, m_end, m_model.end(), 3);
        }
    }

    // Some of the iterators, each for a long time.
    void Hold(Map::iterator position)
    {
        constexpr std::size_t most = 24;
        if (position == m_map.end() || (m_held.size() == most && m_random() % 64 != 0))
        {
            return;
        }
        const Held held{position, m_model.find(position->first)};
        if (m_held.size() < most)
        {
            m_held.push_back(held);
        }
        else
        {
            m_held[m_random() % most] = held;
        }
    }

    void LetGo(const std::string& key)
    {
        std::erase_if(m_held, [&key](const Held& held) { return held.expected->first == key; });
    }

    void EraseRange()
    {
        const auto begin = static_cast<std::ptrdiff_t>(m_random() % (m_map.size() + 1));
        const auto end = begin + static_cast<std::ptrdiff_t>(m_random() % (m_map.size() + 1 - static_cast<std::size_t>(begin)));
        const auto first = std::next(m_model.begin(), begin);
        const auto last = std::next(m_model.begin(), end);
        for (auto erased = first; erased != last; ++erased)
        {
            LetGo(erased->first);
            m_entries.erase(erased->first);
        }
        const auto next = m_map.erase(std::next(m_map.begin(), begin), std::next(m_map.begin(), end));
        CompareAround(next, m_model.erase(first, last));
    }

    void EraseIf(int divisor)
    {
        const auto isErased = [divisor](const auto& entry)
        { return !entry.first.empty() && static_cast<unsigned char>(entry.first.back()) % divisor == 0; };
        for (const auto& entry : m_model)
        {
            if (isErased(entry))
            {
                LetGo(entry.first);
                m_entries.erase(entry.first);
            }
        }
        EXPECT_EQ(erase_if(m_map, isErased), std::erase_if(m_model, isErased));
    }

    void NoteEntries()
    {
        for (auto& entry : m_map)
        {
            m_entries.at(entry.first) = &entry;
        }
        for (Held& held : m_held)
        {
            held.position = m_map.find(held.expected->first);
        }
        m_end = m_map.end();
    }

    Random& m_random;
    Map m_map;
    Model m_model;
    std::map<std::string, const Map::value_type*> m_entries;
    std::vector<Held> m_held;
    Map::const_iterator m_end = m_map.end(); // of the empty map at first
};

} // namespace Support

#endif
