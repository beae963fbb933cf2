#include "catalogue/CatalogueFixture.h"

#include <cstddef>
#include <string>
#include <vector>

// Which texts trees hold once for all, and which belong to them.
namespace Catalogue
{
namespace
{

bool IsSharedAsKey(const std::string& text)
{
    PropertyTree one;
    PropertyTree other;
    one[text] = 1;
    other[text] = 2;
    EXPECT_EQ(one.getMap().begin()->first, text);
    return &one.getMap().begin()->first == &other.getMap().begin()->first;
}

bool IsSharedAsValue(const std::string& text)
{
    const PropertyTree one(text);
    const PropertyTree other(text);
    EXPECT_EQ(one.getScalar().toString(), text);
    EXPECT_EQ(one, other);
    return &one.getScalar().toString() == &other.getScalar().toString();
}

void ExpectSharedKeys(const PropertyTree& tree)
{
    for (std::size_t i = 0; tree.isList() && i != tree.getList().size(); ++i)
    {
        ExpectSharedKeys(tree.getList()[i]);
    }
    for (const auto& [key, child] : tree.isMap() ? tree.getMap() : PropertyTree::Map())
    {
        EXPECT_TRUE(IsSharedAsKey(key)) << key;
        ExpectSharedKeys(child);
    }
}

void ExpectSharedTexts(const std::vector<Field>& fields)
{
    for (const Field& field : fields)
    {
        EXPECT_TRUE(IsSharedAsKey(field.key)) << field.key;
        ExpectSharedKeys(field.sample);
        for (const EnumName& name : field.names)
        {
            EXPECT_TRUE(IsSharedAsValue(std::string(name.name))) << field.key << ": " << name.name;
        }
        ExpectSharedTexts(field.nested);
    }
}

} // namespace

TEST_P(CatalogueTest, TextsOfTheStoredFormExistOnce)
{
    EXPECT_TRUE(IsSharedAsValue(GetParam().classId));
    ExpectSharedTexts(GetParam().fields);
}

TEST(SharedTexts, AreThoseOfTheEffectItselfToo)
{
    for (const char* key : {"name", "implName", "helperSettings", "applyMode", "undoSet"})
    {
        EXPECT_TRUE(IsSharedAsKey(key)) << key;
    }
    for (const char* text : {"ApplyWithMask", "ffmpeg"})
    {
        EXPECT_TRUE(IsSharedAsValue(text)) << text;
    }
}

TEST(SharedTexts, AreNoTextsOfACaller)
{
    std::string text = "a key of a caller";
    EXPECT_FALSE(IsSharedAsKey(text));
    EXPECT_FALSE(IsSharedAsValue(text));
    PropertyTree tree;
    tree[text] = text;
    const PropertyTree copy = tree;
    text.assign(text.size(), '-');
    const auto& [key, child] = *copy.getMap().begin();
    EXPECT_EQ(key, "a key of a caller");
    EXPECT_EQ(child, PropertyTree("a key of a caller"));
    EXPECT_NE(&key, &tree.getMap().begin()->first);
}

} // namespace Catalogue
