#include "PropertyTree/KnownTexts.h"

#include "PropertyTree/KeyHead.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

using Ombrel::KnownTexts;
using Ombrel::PropertyTreeKey;

TEST(KnownTexts, FindEachTextAndNoOther)
{
    std::vector<std::string> texts{"",
                                   "a",
                                   "name",
                                   "12345678",
                                   "123456789",
                                   "EFFECT_BLUR",
                                   "EFFECT_BLUR_MOTION",
                                   "a text that does not fit into a string",
                                   std::string("a\0b", 3)};
    for (int i = 0; i < 3000; ++i)
    {
        texts.push_back("key " + std::to_string(i) + " with an end that is the same");
    }
    std::vector<std::string_view> listed(texts.begin(), texts.end());
    listed.insert(listed.end(), texts.begin(), texts.end()); // each twice
    const KnownTexts known(listed);
    for (const std::string& text : texts)
    {
        const PropertyTreeKey* key = known.Find(text);
        ASSERT_NE(key, nullptr) << text;
        EXPECT_EQ(key->text, text);
        EXPECT_EQ(key->head, Ombrel::HeadOf(text));
        EXPECT_EQ(&Ombrel::KeyOf(key->text), key);
        EXPECT_EQ(known.Find(text + "_"), nullptr) << text;
    }
    EXPECT_EQ(known.Find("A"), nullptr);
    EXPECT_EQ(known.Find("nam"), nullptr);
    EXPECT_EQ(known.Find("EFFECT_BLUR_MOTIOM"), nullptr);
    EXPECT_EQ(KnownTexts({}).Find(""), nullptr);
}

TEST(KnownTexts, TellTheirOwnKeysFromOthers)
{
    const KnownTexts known({"a", "b", "c"});
    const KnownTexts::Range range(&known);
    for (const char* text : {"a", "b", "c"})
    {
        EXPECT_TRUE(range.Holds(known.Find(text))) << text;
    }
    const PropertyTreeKey other{"a", Ombrel::HeadOf("a")};
    EXPECT_FALSE(range.Holds(&other));
    EXPECT_FALSE(range.Holds(known.Find("c") + 1));
    EXPECT_FALSE(range.Holds(known.Find("a") - 1));
    EXPECT_FALSE(KnownTexts::Range(nullptr).Holds(&other));
}

// As long as nobody has said where they come from.
TEST(KnownTexts, AreNoneWithoutASource)
{
    EXPECT_EQ(KnownTexts::Get(), nullptr);
    EXPECT_EQ(KnownTexts::GetIfMade(), nullptr);
}

} // namespace
