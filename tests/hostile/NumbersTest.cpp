#include "catalogue/CatalogueFixture.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

// Numbers at and beyond the edges of their types, into every number of every effect. None may be cast or added up in a way that
// the language leaves undefined, which a sanitizer sees; what each becomes stands here by hand.
namespace Catalogue
{
namespace
{

constexpr double NAN64 = std::numeric_limits<double>::quiet_NaN();
constexpr double INF = std::numeric_limits<double>::infinity();
constexpr std::int64_t LEAST = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t MOST = std::numeric_limits<std::int64_t>::max();

// What an integer field makes of a number: all of its 64 bits, or the low ones.
struct Integers
{
    std::int64_t int64;
    std::int64_t int32;
    std::int64_t uint32;
    std::int64_t uint8;
};

struct Number
{
    const char* name;
    PropertyTree given;
    std::optional<Integers> integers; // none if it is no integer of 64 bits
    double float64;
    double float32;
};

const Number NUMBERS[] = {
    {"NaN", NAN64, {}, NAN64, NAN64},
    {"infinity", INF, {}, INF, INF},
    {"-infinity", -INF, {}, -INF, -INF},
    {"-0.0", -0.0, Integers{0, 0, 0, 0}, -0.0, -0.0},
    {"least denormal", 0x1p-1074, Integers{0, 0, 0, 0}, 0x1p-1074, 0.0},
    {"-least denormal", -0x1p-1074, Integers{0, 0, 0, 0}, -0x1p-1074, -0.0},
    {"most denormal", 0x0.fffffffffffffp-1022, Integers{0, 0, 0, 0}, 0x0.fffffffffffffp-1022, 0.0},
    {"denormal in 32 bits", 0x1p-149, Integers{0, 0, 0, 0}, 0x1p-149, 0x1p-149},
    {"half of the least in 32 bits", 0x1p-150, Integers{0, 0, 0, 0}, 0x1p-150, 0.0},
    {"-1.9", -1.9, Integers{-1, -1, 4294967295, 255}, -1.9, -0x1.e66666p+0},
    {"1e300", 1e300, {}, 1e300, INF},
    {"-1e300", -1e300, {}, -1e300, -INF},
    {"most of 64 bits", 0x1.fffffffffffffp+1023, {}, 0x1.fffffffffffffp+1023, INF},
    {"most of 32 bits", 0x1.fffffep+127, {}, 0x1.fffffep+127, 0x1.fffffep+127},
    {"rounds to infinity in 32 bits", 0x1.ffffffp+127, {}, 0x1.ffffffp+127, INF},
    {"-2^63 - 2048", -0x1.0000000000001p+63, {}, -0x1.0000000000001p+63, -0x1p+63},
    {"2^63", 0x1p+63, {}, 0x1p+63, 0x1p+63},
    {"2^63 - 1024", 0x1.fffffffffffffp+62, Integers{9223372036854774784, -1024, 4294966272, 0}, 0x1.fffffffffffffp+62, 0x1p+63},
    {"-2^63 as a float", -0x1p+63, Integers{LEAST, 0, 0, 0}, -0x1p+63, -0x1p+63},
    {"2^31 + 0.5", 2147483648.5, Integers{2147483648, -2147483648, 2147483648, 0}, 2147483648.5, 2147483648.0},
    {"-2^31 - 0.5", -2147483648.5, Integers{-2147483648, -2147483648, 2147483648, 0}, -2147483648.5, -2147483648.0},
    {"most integer", MOST, Integers{MOST, -1, 4294967295, 255}, 0x1p+63, 0x1p+63},
    {"least integer", LEAST, Integers{LEAST, 0, 0, 0}, -0x1p+63, -0x1p+63},
    {"least integer + 1", LEAST + 1, Integers{LEAST + 1, 1, 1, 1}, -0x1p+63, -0x1p+63},
    {"-1", -1, Integers{-1, -1, 4294967295, 255}, -1.0, -1.0},
    {"2^31 - 1", 2147483647, Integers{2147483647, 2147483647, 2147483647, 255}, 2147483647.0, 2147483648.0},
    {"2^31", 2147483648, Integers{2147483648, -2147483648, 2147483648, 0}, 2147483648.0, 2147483648.0},
    {"-2^31", -2147483648, Integers{-2147483648, -2147483648, 2147483648, 0}, -2147483648.0, -2147483648.0},
    {"2^32 - 1", 4294967295, Integers{4294967295, -1, 4294967295, 255}, 4294967295.0, 4294967296.0},
    {"2^32", 4294967296, Integers{4294967296, 0, 0, 0}, 4294967296.0, 4294967296.0},
};

// Of the 32-bit integers above, as the fields show them that have a rule of their own.
struct Shown
{
    std::int64_t int32;
    std::int64_t hue;  // within a turn
    const char* angle; // the name of the quarter turns, if they have one
};

constexpr Shown SHOWN[] = {
    {0, 0, "NoRotation"},
    {1, 1, "Angle_90"},
    {-1, -1, ""},
    {-1024, 56, "NoRotation"},
    {2147483647, 127, "Angle_270"},
    {-2147483648, -128, "NoRotation"},
};

const Shown& ShownOf(std::int64_t int32)
{
    const auto found = std::ranges::find(SHOWN, int32, &Shown::int32);
    if (found == std::end(SHOWN))
    {
        throw std::logic_error("nothing said of " + std::to_string(int32));
    }
    return *found;
}

bool IsNumber(Kind kind)
{
    return kind == Kind::Int32 || kind == Kind::UInt32 || kind == Kind::UInt8 || kind == Kind::UInt64 || kind == Kind::Int64 ||
           kind == Kind::Float64 || kind == Kind::Float32;
}

// What a number becomes in a field, nothing if it is refused.
std::optional<PropertyTree> Expected(const Field& field, const Number& number)
{
    if (field.kind == Kind::Float64 || field.kind == Kind::Float32)
    {
        const double value = field.kind == Kind::Float64 ? number.float64 : number.float32;
        return field.range ? std::clamp(value, field.range->first, field.range->second) : value;
    }
    if (!number.integers)
    {
        return {};
    }
    switch (field.kind)
    {
    case Kind::Int32:
        if (field.key == "hue")
        {
            return ShownOf(number.integers->int32).hue;
        }
        return field.range ? std::clamp(number.integers->int32, static_cast<std::int64_t>(field.range->first),
                                        static_cast<std::int64_t>(field.range->second))
                           : number.integers->int32;
    case Kind::UInt32:
        // Shown by way of a 32-bit float, which rounds this one.
        return field.isScaled && number.integers->uint32 == 2147483647 ? 2147483648 : number.integers->uint32;
    case Kind::UInt8:
        return number.integers->uint8;
    default:
        return number.integers->int64;
    }
}

// Equal, or both of them NaN.
bool IsSame(const PropertyTree& a, const PropertyTree& b)
{
    const auto isNaN = [](const PropertyTree& tree)
    {
        return tree.isScalar() && tree.getScalar().kind() == Ombrel::PropertyTreeScalar::Kind::Float &&
               std::isnan(tree.getScalar().toDouble());
    };
    if (isNaN(a) && isNaN(b))
    {
        return true;
    }
    if (a.isNull() || b.isNull() || a.isScalar() || b.isScalar())
    {
        return a == b;
    }
    if (a.isList() || b.isList())
    {
        return a.isList() && b.isList() && std::ranges::equal(a.getList(), b.getList(), IsSame);
    }
    return std::ranges::equal(a.getMap(), b.getMap(),
                              [](const auto& left, const auto& right)
                              { return left.first == right.first && IsSame(left.second, right.second); });
}

} // namespace

class NumbersTest : public CatalogueTest
{
protected:
    static PropertyTree At(const PropertyTree& tree, std::string_view nestedKey)
    {
        return nestedKey.empty() ? tree : tree[nestedKey];
    }

    // Everything that reads the record must bear what is in it, and keep it.
    static void Use(const std::shared_ptr<IEffectSettings>& effect)
    {
        const PropertyTree stored = StoredForm(*effect);
        const auto restored = Make();
        restored->Deserialize(stored);
        if (std::ranges::all_of(GetParam().fields, [](const Field& field) { return field.target.empty(); }))
        {
            EXPECT_TRUE(IsSame(StoredForm(*restored), stored))
                << testing::PrintToString(stored) << " became " << testing::PrintToString(StoredForm(*restored));
        }
        const auto clone = effect->Clone();
        EXPECT_TRUE(IsSame(StoredForm(*clone), stored));
        EXPECT_NO_THROW((void)(*clone == *effect));
        EXPECT_NO_THROW((void)effect->IsEmpty());
        EXPECT_NO_THROW((void)effect->GetEffectSettings().IsEmpty());
        EXPECT_NO_THROW(clone->Add(*effect));
        EXPECT_NO_THROW(StoredForm(*clone));
    }

    // Gives a number to a field, or to one of a nested record.
    static void Try(const Field& field, const Field& numeric, std::string_view nestedKey)
    {
        for (const Number& number : NUMBERS)
        {
            SCOPED_TRACE(field.key + '/' + std::string(nestedKey) + ", " + number.name);
            const PropertyTree given = nestedKey.empty() ? number.given : Map({{nestedKey, number.given}});
            const std::optional<PropertyTree> expected = Expected(numeric, number);
            const auto effect = Make();
            const PropertyTree before = At(Get(*effect, field.key), nestedKey);
            if (!expected)
            {
                EXPECT_THROW(Set(*effect, field.key, given), std::out_of_range);
                EXPECT_EQ(At(Get(*effect, field.key), nestedKey), before);
                EXPECT_THROW(effect->Deserialize(Map({{field.key, given}})), std::out_of_range);
                continue;
            }
            Set(*effect, field.key, given);
            const PropertyTree found = At(Get(*effect, field.key), nestedKey);
            EXPECT_TRUE(IsSame(found, *expected))
                << "expected " << testing::PrintToString(*expected) << ", found " << testing::PrintToString(found);
            Use(effect);
        }
    }
};

TEST_P(NumbersTest, AtTheEdgesBecomeWhatIsTold)
{
    for (const Field& field : GetParam().fields)
    {
        if (IsNumber(field.kind))
        {
            Try(field, field, "");
        }
        for (const Field& nested : field.nested)
        {
            if (IsNumber(nested.kind))
            {
                Try(field, nested, nested.key);
            }
        }
    }
}

// All of them at once, so that what is computed from several meets several.
TEST_P(NumbersTest, OfOneKindTogetherAreKept)
{
    for (const Number& number : NUMBERS)
    {
        PropertyTree tree = Map({});
        for (const Field& field : GetParam().fields)
        {
            if (IsNumber(field.kind) && Expected(field, number))
            {
                tree[field.key] = number.given;
            }
        }
        SCOPED_TRACE(number.name);
        const auto effect = Make();
        effect->Deserialize(tree);
        EXPECT_NO_THROW((void)(*effect->Clone() == *effect));
        EXPECT_NO_THROW((void)effect->GetEffectSettings().IsEmpty());
        PropertyTree stored = StoredForm(*effect);
        // Reading again what a scaled value shows shrinks it, and so on until nothing is left: that is how it is stored.
        for (int i = 0; i < 3; ++i)
        {
            effect->Deserialize(stored);
            stored = StoredForm(*effect);
        }
    }
}

// No enumeration reads floats, and one alone reads integers.
TEST_P(NumbersTest, AreNoNames)
{
    for (const Field& field : GetParam().fields)
    {
        for (const Number& number : NUMBERS)
        {
            if (field.kind != Kind::Enum)
            {
                continue;
            }
            const auto effect = Make();
            const bool isInteger = number.given.getScalar().kind() == Ombrel::PropertyTreeScalar::Kind::Integer;
            if (!field.takesNumbers || !isInteger)
            {
                EXPECT_THROW(Set(*effect, field.key, number.given), std::invalid_argument) << field.key << ", " << number.name;
                EXPECT_EQ(Get(*effect, field.key), field.defaultValue) << field.key << ", " << number.name;
                continue;
            }
            Set(*effect, field.key, number.given);
            EXPECT_EQ(Get(*effect, field.key), PropertyTree(ShownOf(number.integers->int32).angle)) << number.name;
            EXPECT_NO_THROW(StoredForm(*effect->Clone())) << number.name;
        }
    }
}

// -0.0 is the default 0.0, and left out as such.
TEST_P(NumbersTest, MinusZeroIsZero)
{
    for (const Field& field : GetParam().fields)
    {
        if (field.defaultValue == PropertyTree(0.0))
        {
            const auto effect = Make();
            Set(*effect, field.key, -0.0);
            EXPECT_EQ(StoredForm(*effect), DefaultTree()) << field.key;
        }
    }
}

TEST_P(NumbersTest, AtTheEdgesOfAFrame)
{
    for (const Number& number : NUMBERS)
    {
        const auto effect = Make();
        const PropertyTree tree = Map({{"helperSettings", Map({{"maxWidth", number.given}})}});
        if (!number.integers)
        {
            EXPECT_THROW(effect->Deserialize(tree), std::out_of_range) << number.name;
            EXPECT_EQ(effect->GetHelperSettings().GetMaxWidth(), 4294967295u) << number.name;
            continue;
        }
        effect->Deserialize(tree);
        EXPECT_EQ(effect->GetHelperSettings().GetMaxWidth(), number.integers->uint32) << number.name;
    }
}

INSTANTIATE_TEST_SUITE_P(All, NumbersTest, testing::ValuesIn(Catalogue::All()),
                         [](const auto& row) { return row.param.className; });

namespace
{

// A number in a list or deep in a record, which the rows of the catalogue do not take apart.
struct Place
{
    const char* classId;
    PropertyTree around; // what stands beside it
    std::vector<std::string> path;
    std::int64_t Integers::*result;
};

constexpr const char* FIRST = "the first element";

PropertyTree& NumberIn(PropertyTree& tree, const Place& place)
{
    PropertyTree* found = &tree;
    for (const std::string& key : place.path)
    {
        found = key == FIRST ? &found->getList().front() : &(*found)[key];
    }
    return *found;
}

std::vector<Place> Places()
{
    const PropertyTree points = Support::List({Map({{"x", 5}, {"y", 6}})});
    return {
        {"EFFECT_BLUR_RADIAL", Map({{"trace", points}}), {"trace", FIRST, "x"}, &Integers::int32},
        {"EFFECT_FACE_THINNING",
         Map({{"faceOutline", Map({{"contour", points}})}}),
         {"faceOutline", "contour", FIRST, "y"},
         &Integers::int32},
        {"EFFECT_EYE_EXTENDING", Map({}), {"eyes", "left", "pupil", "point", "x"}, &Integers::int32},
        {"EFFECT_EYE_EXTENDING", Map({}), {"eyes", "right", "pupil", "point", "y"}, &Integers::int32},
        {"EFFECT_AUTO_GLARE_REMOVE", Map({}), {"face", "framePoints", "first", "x"}, &Integers::int32},
        {"EFFECT_AUTO_GLARE_REMOVE",
         Map({{"face", Map({{"mouth", Map({{"inner", Map({{"contour", points}})}})}})}}),
         {"face", "mouth", "inner", "contour", FIRST, "x"},
         &Integers::int32},
        {"EFFECT_GRADIENT",
         Map({{"gradient", Support::List({Map({{"value", "12ab56cd"}})})}}),
         {"gradient", FIRST, "key"},
         &Integers::uint8},
    };
}

TEST(NumbersInLists, AtTheEdgesBecomeWhatIsTold)
{
    for (const Place& place : Places())
    {
        for (const Number& number : NUMBERS)
        {
            SCOPED_TRACE(std::string(place.classId) + ", " + place.path.back() + ", " + number.name);
            const auto effect = IEffectSettings::CreateEffectSettings(place.classId);
            PropertyTree tree = place.around;
            NumberIn(tree, place) = number.given;
            if (!number.integers)
            {
                EXPECT_THROW(effect->Deserialize(tree), std::out_of_range);
                continue;
            }
            effect->Deserialize(tree);
            PropertyTree full;
            full[place.path.front()] = effect->GetPropertyAccess()->GetProperty(place.path.front());
            EXPECT_EQ(NumberIn(full, place), PropertyTree((*number.integers).*place.result));
        }
    }
}

} // namespace
} // namespace Catalogue
