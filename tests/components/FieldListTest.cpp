#include "Proc/Reflection/FieldList.h"

#include "Proc/Reflection/SpelledName.h"

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

namespace Somewhere
{

struct Base
{
    int m_inherited = 0;
};

template <class T> struct Outer
{
    struct Nested : Base
    {
        T m_radius{};
        int plain = 0;
        int m_ = 0;
        int m_m_twice = 0;
        int RInternal = 0;
        int model64Bit = 0;
        int azAZ09 = 0;
    };
};

class Private
{
public:
    static constexpr std::string_view KeyOfSecret() { return Ombrel::Proc::FieldDescriptor<&Private::m_secret>::KEY; }

private:
    int m_secret = 0;
};

} // namespace Somewhere

namespace
{

using namespace Ombrel::Proc;
using Nested = Somewhere::Outer<std::pair<int, double>>::Nested;

TEST(FieldDescriptor, TakesItsKeyFromTheMember)
{
    EXPECT_EQ(FieldDescriptor<&Nested::m_radius>::KEY, "radius");
    EXPECT_EQ(FieldDescriptor<&Nested::plain>::KEY, "plain");
    EXPECT_EQ(FieldDescriptor<&Nested::m_>::KEY, "");
    EXPECT_EQ(FieldDescriptor<&Nested::m_m_twice>::KEY, "m_twice");
    EXPECT_EQ(FieldDescriptor<&Nested::RInternal>::KEY, "RInternal");
    EXPECT_EQ(FieldDescriptor<&Nested::model64Bit>::KEY, "model64Bit");
    EXPECT_EQ(FieldDescriptor<&Nested::azAZ09>::KEY, "azAZ09");
    EXPECT_EQ(FieldDescriptor<&Nested::m_inherited>::KEY, "inherited");
}

TEST(FieldDescriptor, ReachesPrivateMembersFromWithin)
{
    EXPECT_EQ(Somewhere::Private::KeyOfSecret(), "secret");
}

TEST(FieldDescriptor, KnowsPairs)
{
    using List = Fields<std::pair<int, Nested>>::List;
    ASSERT_EQ(List::KEYS.size(), 2u);
    EXPECT_EQ(List::KEYS[0], "first");
    EXPECT_EQ(List::KEYS[1], "second");
}

struct Record
{
    void SetHue(int) {}
    int GetHue() const { return 0; }
};

TEST(AccessorDescriptor, HasTheKeyItIsGiven)
{
    EXPECT_EQ((AccessorDescriptor<"hue", &Record::SetHue, &Record::GetHue>::KEY), "hue");
}

TEST(FieldList, KeepsTheOrderOfItsFields)
{
    using List = FieldList<FieldDescriptor<&Nested::plain>, FieldDescriptor<&Nested::m_inherited>>;
    EXPECT_EQ(List::KEYS, (std::array<std::string_view, 2>{"plain", "inherited"}));
    static_assert(List::HasKey("plain") && !List::HasKey("radius"));
    static_assert(FieldList<>::KEYS.empty());
}

template <KeyText Key> using Hue = AccessorDescriptor<Key, &Record::SetHue, &Record::GetHue>;

TEST(FieldList, SortsKeysByAllTheirBytes)
{
    using List = FieldList<Hue<"thresholdB">, Hue<"thresholdA">, Hue<"threshol">, Hue<"threshold">, Hue<"\xc3\xa4">, Hue<"a">>;
    std::vector<std::string_view> keys;
    for (const SortedKey& key : List::SORTED_KEYS)
    {
        keys.push_back(List::KEYS[key.index]);
    }
    EXPECT_EQ(keys, (std::vector<std::string_view>{"a", "threshol", "threshold", "thresholdA", "thresholdB", "\xc3\xa4"}));
}

TEST(TypeName, IsTheClassWithoutItsNamespace)
{
    EXPECT_EQ(TYPE_NAME<Somewhere::Private>, "Private");
    EXPECT_EQ(TYPE_NAME<Somewhere::Base>, "Base");
}

} // namespace
