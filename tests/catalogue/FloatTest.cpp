#include "catalogue/CatalogueFixture.h"

#include <cmath>
#include <initializer_list>
#include <limits>
#include <utility>
#include <vector>

// What becomes of a floating-point value, in a nested record too.
namespace Catalogue
{
namespace
{

struct FloatKey
{
    std::vector<std::string> path; // the key, behind those of the records around it
    const Field* field;
    bool isCompared;
};

std::vector<FloatKey> KeysOf(std::initializer_list<Kind> kinds, const std::vector<Field>& fields)
{
    std::vector<FloatKey> keys;
    for (const Field& field : fields)
    {
        if (std::ranges::count(kinds, field.kind) != 0)
        {
            keys.push_back({{field.key}, &field, field.isCompared});
        }
        for (FloatKey& nested : KeysOf(kinds, field.nested))
        {
            nested.path.insert(nested.path.begin(), field.key);
            nested.isCompared = nested.isCompared && field.isCompared;
            keys.push_back(std::move(nested));
        }
    }
    return keys;
}

std::string NameOf(const FloatKey& key)
{
    std::string name;
    for (const std::string& part : key.path)
    {
        name += '/' + part;
    }
    return name;
}

PropertyTree TreeWith(const FloatKey& key, PropertyTree value)
{
    for (auto part = key.path.rbegin(); part != key.path.rend(); ++part)
    {
        value = Map({{*part, value}});
    }
    return value;
}

// Null if the key is missing.
PropertyTree ValueIn(PropertyTree tree, const FloatKey& key)
{
    for (const std::string& part : key.path)
    {
        tree = tree.contains(part) ? PropertyTree(tree[part]) : PropertyTree();
    }
    return tree;
}

class FloatTest : public CatalogueTest
{
protected:
    static std::shared_ptr<IEffectSettings> With(const FloatKey& key, const PropertyTree& value)
    {
        const auto effect = Make();
        effect->Deserialize(TreeWith(key, value));
        return effect;
    }

    static bool AreEqual(const IEffectSettings& a, const IEffectSettings& b)
    {
        if (GetParam().hasPropertyAccess) // else the keys are not the record's
        {
            EXPECT_EQ(a.GetEffectSettings().IsEqualTo(b.GetEffectSettings()), a == b);
        }
        return a == b;
    }

    static void ExpectCompared(const FloatKey& key, double a, double b, bool areEqual)
    {
        EXPECT_EQ(AreEqual(*With(key, a), *With(key, b)), areEqual || !key.isCompared) << NameOf(key) << ": " << a << ", " << b;
        EXPECT_EQ(AreEqual(*With(key, b), *With(key, a)), areEqual || !key.isCompared) << NameOf(key) << ": " << b << ", " << a;
    }
};

} // namespace

TEST_P(FloatTest, TheLeastDifferenceCounts)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const FloatKey& key : KeysOf({Kind::Float64, Kind::Float32}, GetParam().fields))
    {
        if (key.field->tolerance != 0.0)
        {
            continue;
        }
        const bool isSingle = key.field->kind == Kind::Float32;
        ExpectCompared(key, 0.375, 0.375, true);
        ExpectCompared(key, 0.375, isSingle ? 0.375000029802322387695 : 0.37500000000000006, false);
        ExpectCompared(key, 0.0, isSingle ? 1.401298464324817e-45 : 5e-324, false);
        ExpectCompared(key, 0.0, -0.0, true);
        ExpectCompared(key, infinity, infinity, true);
    }
}

TEST_P(FloatTest, ADifferenceBelowTheToleranceDoesNotCount)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const FloatKey& key : KeysOf({Kind::Float64, Kind::Float32}, GetParam().fields))
    {
        if (const double tolerance = key.field->tolerance; tolerance != 0.0)
        {
            ExpectCompared(key, 0.0, 0.99 * tolerance, true);
            ExpectCompared(key, 0.0, tolerance, false);
            ExpectCompared(key, 0.0, -tolerance, false);
            ExpectCompared(key, infinity, infinity, false);
        }
    }
}

TEST_P(FloatTest, ANaNEqualsNothingAndIsAlwaysWritten)
{
    const double nan = std::nan("");
    for (const FloatKey& key : KeysOf({Kind::Float64, Kind::Float32}, GetParam().fields))
    {
        ExpectCompared(key, nan, nan, false);
        ExpectCompared(key, nan, 0.375, false);
        const auto effect = With(key, nan);
        EXPECT_EQ(AreEqual(*effect, *effect), !key.isCompared) << NameOf(key);
        const PropertyTree written = ValueIn(StoredForm(*effect), key);
        EXPECT_TRUE(!written.isNull() && std::isnan(written.getScalar().toDouble())) << NameOf(key);
    }
}

// In single precision the nearest number is read, and is written as it is.
TEST_P(FloatTest, SinglePrecisionKeepsTheNearestNumber)
{
    const std::pair<PropertyTree, double> cases[] = {
        {0.1, 0.100000001490116119384765625},
        {-1234.5, -1234.5},
        {9876543.0, 9876543.0},
        {16777217, 16777216.0},
        {1e300, std::numeric_limits<double>::infinity()},
        {5, 5.0},
    };
    for (const FloatKey& key : KeysOf({Kind::Float32}, GetParam().fields))
    {
        for (const auto& [given, kept] : cases)
        {
            const auto effect = With(key, given);
            EXPECT_EQ(ValueIn(StoredForm(*effect), key), PropertyTree(kept)) << NameOf(key);
            if (const auto access = effect->GetPropertyAccess())
            {
                EXPECT_EQ(ValueIn(Map({{key.path.front(), access->GetProperty(key.path.front())}}), key), PropertyTree(kept))
                    << NameOf(key);
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, FloatTest, testing::ValuesIn(All()), [](const auto& row) { return row.param.className; });

} // namespace Catalogue
