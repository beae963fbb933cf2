#include "Exception/Exception.h"
#include "catalogue/CatalogueFixture.h"
#include "support/FailingMemory.h"

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

// Texts that are no texts: with zeros inside, in no encoding, or as long as a file. None is cut, mended or taken for another,
// and none costs more than the copy that is kept of it.
namespace Catalogue
{
namespace
{

using namespace std::string_view_literals;
using Support::PeakMemoryOf;

constexpr std::size_t LENGTH = 64 * 1024 * 1024;

// With a zero inside or alone; then what no UTF-8 is: a byte that never stands there, a rest without a beginning, a beginning
// without a rest, a zero in two bytes, half of a pair, and a character beyond the last.
constexpr std::string_view TEXTS[] = {
    "\0"sv,
    "a\0b"sv,
    "a text\0"sv,
    "\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"sv,
    "\xff\xfe"sv,
    "\x80"sv,
    "a\xe2\x82"sv,
    "\xc0\x80"sv,
    "\xed\xa0\x80"sv,
    "\xf4\x90\x80\x80"sv,
    "\"\\\n\r\t\x01\x7f"sv,
};

std::string FallbackName(const Field& field)
{
    const auto found = std::ranges::find(field.names, field.fallback, &EnumName::value);
    return found == field.names.end() ? "" : std::string(found->name);
}

// Calls with each field of the effect and each of its nested ones: the field, the nested key or "", and a function that puts a
// value where the field stands.
template <class Visit> void ForEachField(const std::vector<Field>& fields, Visit visit)
{
    for (const Field& field : fields)
    {
        visit(field, field.key, std::string());
        for (const Field& nested : field.nested)
        {
            visit(nested, field.key, nested.key);
        }
    }
}

PropertyTree Wrapped(PropertyTree value, const std::string& nestedKey)
{
    if (nestedKey.empty())
    {
        return value;
    }
    PropertyTree tree;
    tree[nestedKey] = std::move(value);
    return tree;
}

PropertyTree Unwrapped(PropertyTree tree, const std::string& nestedKey)
{
    return nestedKey.empty() ? tree : PropertyTree(tree[nestedKey]);
}

} // namespace

class TextsTest : public CatalogueTest
{
protected:
    static void SetUpTestSuite() { s_long = std::string(LENGTH, 'x'); }
    static void TearDownTestSuite() { s_long = PropertyTree(); }

    // Lent to a map, since every copy takes its time.
    static PropertyTree s_long;
};

PropertyTree TextsTest::s_long;

TEST_P(TextsTest, AreKeptByteByByte)
{
    for (const std::string_view text : TEXTS)
    {
        const PropertyTree value{std::string(text)};
        ForEachField(GetParam().fields,
                     [&](const Field& field, const std::string& key, const std::string& nestedKey)
                     {
                         if (field.kind != Kind::String)
                         {
                             return;
                         }
                         const auto effect = Make();
                         Set(*effect, key, Wrapped(value, nestedKey));
                         EXPECT_EQ(Unwrapped(Get(*effect, key), nestedKey), value) << key;
                         const auto restored = Make();
                         restored->Deserialize(StoredForm(*effect->Clone()));
                         EXPECT_EQ(Unwrapped(Get(*restored, key), nestedKey), value) << key;
                     });
        const auto effect = Make();
        effect->Deserialize(Map({{"implName", value}}));
        EXPECT_EQ(StoredForm(*effect)["implName"], value);
    }
}

TEST_P(TextsTest, OfNamesAreComparedInFull)
{
    ForEachField(GetParam().fields,
                 [](const Field& field, const std::string& key, const std::string& nestedKey)
                 {
                     if (field.kind != Kind::Enum || !field.target.empty())
                     {
                         return;
                     }
                     std::vector<std::string> texts(std::begin(TEXTS), std::end(TEXTS));
                     for (const EnumName& name : field.names)
                     {
                         texts.push_back(std::string(name.name) + '\0');
                         texts.push_back('\0' + std::string(name.name));
                         texts.push_back(std::string(name.name) + '\xff');
                     }
                     for (const std::string& text : texts)
                     {
                         const auto effect = Make();
                         Set(*effect, key, Wrapped(field.sample, nestedKey));
                         Set(*effect, key, Wrapped(text, nestedKey));
                         EXPECT_EQ(Unwrapped(Get(*effect, key), nestedKey), PropertyTree(FallbackName(field)))
                             << key << ", " << testing::PrintToString(text);
                     }
                 });
}

// A colour is read as text up to a zero, by the digits at its beginning.
TEST_P(TextsTest, OfColorsEndAtAZero)
{
    ForEachField(GetParam().fields,
                 [](const Field& field, const std::string& key, const std::string& nestedKey)
                 {
                     if (field.kind != Kind::Color)
                     {
                         return;
                     }
                     const auto effect = Make();
                     for (const auto& [text, color] : {std::pair("12ab56cd\0ff"sv, "12ab56cd"),
                                                       {"ff\0ff"sv, "000000ff"},
                                                       {"12ab56cd\xff\xfe"sv, "12ab56cd"},
                                                       {"0x\0ff"sv, "00000000"}})
                     {
                         Set(*effect, key, Wrapped(std::string(text), nestedKey));
                         EXPECT_EQ(Unwrapped(Get(*effect, key), nestedKey), PropertyTree(color)) << key << ", " << text;
                     }
                     for (const std::string_view text : {"\0ff"sv, "\xff"sv, "-\0ff"sv, " \0ff"sv, ""sv,
                                                         "\xef\xbb\xbf"
                                                         "ff"sv})
                     {
                         EXPECT_THROW(Set(*effect, key, Wrapped(std::string(text), nestedKey)), std::invalid_argument)
                             << key << ", " << text;
                         EXPECT_EQ(Unwrapped(Get(*effect, key), nestedKey), PropertyTree("00000000")) << key << ", " << text;
                     }
                 });
}

TEST_P(TextsTest, OfKeysAreComparedInFull)
{
    const auto effect = Make();
    const auto access = effect->GetPropertyAccess();
    for (const Field& field : GetParam().fields)
    {
        PropertyTree tree = Map({{"implName\0"sv, "gpu"}, {"helperSettings\0"sv, 5}, {"\0"sv, 5}, {"\xff"sv, 5}});
        for (const std::string& key : {field.key + '\0', '\0' + field.key, field.key + '\xff', field.key + '\0' + field.key})
        {
            tree[key] = field.sample;
            if (access)
            {
                access->SetProperty(key, field.sample);
                EXPECT_TRUE(access->GetProperty(key).isNull()) << testing::PrintToString(key);
            }
        }
        EXPECT_EQ(StoredForm(*effect), DefaultTree()) << field.key;
        effect->Deserialize(tree);
        EXPECT_EQ(StoredForm(*effect), DefaultTree()) << field.key;
    }
}

// 64 MiB where a number, a name, a colour or a list should stand: it is refused or passed over without a copy, in the failure
// neither.
TEST_P(TextsTest, OfAnyLengthAreNotCopiedInVain)
{
    const auto take = [](const Field& field, const std::string& key, const std::string& nestedKey)
    {
        const auto effect = Make();
        effect->Deserialize(Map({})); // makes the default record
        PropertyTree tree;
        (nestedKey.empty() ? tree[key] : tree[key][nestedKey]) = std::move(s_long);
        std::string failure;
        const std::size_t peak = PeakMemoryOf(
            [&]
            {
                try
                {
                    effect->Deserialize(tree);
                }
                catch (const std::invalid_argument& refused)
                {
                    failure = refused.what();
                }
            });
        s_long = std::move(nestedKey.empty() ? tree[key] : tree[key][nestedKey]);
        switch (field.kind)
        {
        case Kind::String:
            EXPECT_LE(peak, LENGTH + 5000) << key;
            EXPECT_TRUE(Unwrapped(Get(*effect, key), nestedKey) == s_long) << key;
            return;
        case Kind::Enum:
        case Kind::List:
        case Kind::Set:
        case Kind::ColorMap:
        case Kind::EffectList:
            EXPECT_EQ(failure, "") << key;
            break;
        case Kind::Color:
            EXPECT_EQ(failure, "invalid stoul argument") << key;
            break;
        case Kind::Bool:
            EXPECT_EQ(failure, "scalar: expected a bool, found a string") << key;
            break;
        case Kind::Record:
            EXPECT_EQ(failure, "tree: expected a map, found a scalar") << key;
            break;
        default:
            EXPECT_EQ(failure, "scalar: expected a number, found a string") << key;
            break;
        }
        EXPECT_LE(peak, 5000u) << key;
    };
    ForEachField(GetParam().fields, take);
}

INSTANTIATE_TEST_SUITE_P(All, TextsTest, testing::ValuesIn(Catalogue::All()),
                         [](const auto& row) { return row.param.className; });

namespace
{

std::string RefusalOf(const std::string& color)
{
    const auto effect = IEffectSettings::CreateEffectSettings("EFFECT_COLORED_GLASS");
    const PropertyTree tree = Map({{"color", color}});
    try
    {
        effect->Deserialize(tree);
    }
    catch (const std::exception& failure)
    {
        return failure.what();
    }
    return "read as " + effect->GetPropertyAccess()->GetProperty("color").getScalar().toString();
}

TEST(LongTexts, AsColors)
{
    EXPECT_EQ(RefusalOf(std::string(LENGTH, ' ')), "invalid stoul argument");
    EXPECT_EQ(RefusalOf(std::string(LENGTH, ' ') + "12ab56cd"), "read as 12ab56cd");
    EXPECT_EQ(RefusalOf(std::string(LENGTH, '0')), "read as 00000000");
    EXPECT_EQ(RefusalOf(std::string(LENGTH, '0') + "12ab56cd"), "read as 12ab56cd");
    EXPECT_EQ(RefusalOf(std::string(LENGTH, 'f')), "stoul argument out of range");
    EXPECT_EQ(RefusalOf("12ab56cd" + std::string(LENGTH, 'x')), "read as 12ab56cd");
}

TEST(LongTexts, AsKeysAndClassIds)
{
    const std::string text(LENGTH, 'x');
    const auto effect = IEffectSettings::CreateEffectSettings("EFFECT_ACID");
    PropertyTree tree = Map({{"radius", 3}});
    tree[text] = 5;
    effect->Deserialize(tree);
    EXPECT_EQ(StoredForm(*effect), Map({{"radius", 3}}));
    EXPECT_TRUE(effect->GetPropertyAccess()->GetProperty(text).isNull());
    EXPECT_NO_THROW(effect->GetPropertyAccess()->SetProperty(text, 5));
    try
    {
        IEffectSettings::CreateEffectSettings(text);
        ADD_FAILURE() << "was made";
    }
    catch (const Ombrel::Exception& failure)
    {
        const std::string& description = *boost::get_error_info<Ombrel::ErrorDescription>(failure);
        EXPECT_TRUE(description == "Unknown Effect Setting type (" + text + ")!");
    }
}

} // namespace
} // namespace Catalogue
