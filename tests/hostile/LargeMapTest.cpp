#include "catalogue/CatalogueFixture.h"

#include <ctime>
#include <string>

// A map with very many keys that no effect knows: they are passed over, and cost no more than a look at each.
namespace Catalogue
{
namespace
{

constexpr int COUNT = 200'000;

} // namespace

class LargeMapTest : public CatalogueTest
{
protected:
    static void SetUpTestSuite()
    {
        for (int i = 0; i < COUNT; ++i)
        {
            s_tree["key " + std::to_string(i)] = i;
        }
        s_tree["implName"] = "gpu";
    }

    static void TearDownTestSuite() { s_tree = PropertyTree(); }

    static PropertyTree s_tree;
};

PropertyTree LargeMapTest::s_tree;

TEST_P(LargeMapTest, OfUnknownKeysIsPassedOver)
{
    const std::clock_t start = std::clock();
    const auto effect = Make();
    effect->Deserialize(s_tree);
    PropertyTree expected = DefaultTree();
    expected["implName"] = "gpu";
    EXPECT_EQ(StoredForm(*effect), expected);
    EXPECT_LT(std::clock() - start, CLOCKS_PER_SEC);
}

INSTANTIATE_TEST_SUITE_P(All, LargeMapTest, testing::ValuesIn(Catalogue::All()),
                         [](const auto& row) { return row.param.className; });

} // namespace Catalogue
