#include "catalogue/CatalogueFixture.h"
#include "support/SmallStack.h"

#include <array>
#include <stdexcept>
#include <string>

// A value a million levels deep under any key: no reader may follow it down on the stack, whatever else it does with it.
namespace Catalogue
{
namespace
{

constexpr std::size_t STACK = 256 * 1024;

PropertyTree Deep(bool (*isList)(int level))
{
    PropertyTree tree("the innermost");
    for (int level = 0; level < 1'000'000; ++level)
    {
        PropertyTree outer;
        PropertyTree& inner = isList(level) ? (outer.append(PropertyTree()), outer.getList().front()) : outer["key"];
        inner = std::move(tree);
        tree = std::move(outer);
    }
    return tree;
}

} // namespace

class DeepValueTest : public CatalogueTest
{
protected:
    static void SetUpTestSuite()
    {
        s_values = {Deep([](int) { return true; }), Deep([](int) { return false; }),
                    Deep([](int level) { return level % 2 != 0; })};
    }

    static void TearDownTestSuite() { s_values = {}; }

    // The outcome is that of a list or a map of one element.
    template <class Read> static void Try(const std::string& key, Read read)
    {
        try
        {
            read();
        }
        catch (const std::invalid_argument&)
        {
        }
        catch (const std::out_of_range& failure)
        {
            EXPECT_STREQ(failure.what(), "invalid map<K, T> key") << key; // an effect without a name
        }
    }

    // Each is lent to a map, since copies of it would take their time.
    static std::array<PropertyTree, 3> s_values;
};

std::array<PropertyTree, 3> DeepValueTest::s_values;

TEST_P(DeepValueTest, UnderAnyKeyNeedsNoStack)
{
    std::vector<std::string> keys{"implName", "helperSettings", "name", "no key of any effect"};
    std::ranges::transform(GetParam().fields, std::back_inserter(keys), &Field::key);
    const auto work = [&keys]
    {
        for (const std::string& key : keys)
        {
            for (PropertyTree& value : s_values)
            {
                PropertyTree tree;
                tree[key] = std::move(value);
                const auto effect = Make();
                Try(key, [&] { effect->Deserialize(tree); });
                if (const auto access = effect->GetPropertyAccess())
                {
                    Try(key, [&] { access->SetProperty(key, tree[key]); });
                }
                EXPECT_LE(StoredForm(*effect).getMap().size(), DefaultTree().getMap().size() + 1) << key;
                value = std::move(tree[key]);
            }
        }
    };
    Support::RunOnStack(STACK, work);
}

TEST_P(DeepValueTest, AsAWholeNeedsNoStack)
{
    const auto work = []
    {
        for (const PropertyTree& value : s_values)
        {
            const auto effect = Make();
            Try("the whole", [&] { effect->Deserialize(value); });
            EXPECT_EQ(StoredForm(*effect), DefaultTree());
            std::shared_ptr<IEffectSettings> other = effect;
            EXPECT_ANY_THROW(EffectSettings::DeserializePtr(value, other));
            EXPECT_EQ(other, effect);
        }
    };
    Support::RunOnStack(STACK, work);
}

INSTANTIATE_TEST_SUITE_P(All, DeepValueTest, testing::ValuesIn(Catalogue::All()),
                         [](const auto& row) { return row.param.className; });

} // namespace Catalogue
