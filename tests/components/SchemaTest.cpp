#include "Proc/Reflection/Schema.h"

#include "Samples.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <string>
#include <vector>

namespace
{

// A kind of its own under a key beyond ASCII.
struct Celsius
{
    double degrees = 0.0;

    bool operator==(const Celsius&) const = default;
};

struct Weather
{
    void SetCelsius(Celsius value) { m_celsius = value; }
    Celsius GetCelsius() const { return m_celsius; }

    Celsius m_celsius;
};

} // namespace

namespace Ombrel::Proc
{

template <> struct Codec<Celsius>
{
    static void Write(PropertyTree& child, Celsius value, const WriteFlags*) { WriteFloat(child, value.degrees); }
    static void Read(const PropertyTree& child, Celsius& value, const ReadFlags*) { value.degrees = ReadFloat(child); }
};

template <> struct Fields<Weather>
{
    using List = FieldList<AccessorDescriptor<"\xc2\xb0", &Weather::SetCelsius, &Weather::GetCelsius>>;
};

} // namespace Ombrel::Proc

namespace
{

using namespace Ombrel::Proc;
using namespace Samples;
using Ombrel::PropertyTree;
using Ombrel::PropertyTreeKey;
using Support::Map;

const RecordSchema& EverythingSchema()
{
    return Reflected<Everything>::Schema();
}

const ValueSchema& ValueOf(std::string_view key)
{
    return *EverythingSchema().fields[FindField(EverythingSchema(), key).value()].value;
}

TEST(Schema, ListsTheFieldsInDeclarationOrder)
{
    std::vector<std::string> keys;
    for (const FieldSchema& field : EverythingSchema().fields)
    {
        keys.emplace_back(field.key);
    }
    EXPECT_EQ(keys, (std::vector<std::string>{"int32", "uint32", "uint8", "int64", "uint64", "float64", "float32", "bool",
                                              "string", "enum", "record", "pair", "points", "channels", "rows", "set"}));
}

TEST(Schema, KnowsTheOrderOfTheKeys)
{
    std::vector<std::string> keys;
    for (std::size_t place = 0; place < EverythingSchema().fields.size(); ++place)
    {
        keys.emplace_back(EverythingSchema().fields[EverythingSchema().sortedKeys[place].index].key);
    }
    EXPECT_EQ(keys, (std::vector<std::string>{"bool", "channels", "enum", "float32", "float64", "int32", "int64", "pair",
                                              "points", "record", "rows", "set", "string", "uint32", "uint64", "uint8"}));
}

TEST(Schema, TellsTheKinds)
{
    EXPECT_EQ(ValueOf("int32").kind, ValueKind::Int32);
    EXPECT_EQ(ValueOf("uint32").kind, ValueKind::UInt32);
    EXPECT_EQ(ValueOf("uint8").kind, ValueKind::UInt8);
    EXPECT_EQ(ValueOf("int64").kind, ValueKind::Int64);
    EXPECT_EQ(ValueOf("uint64").kind, ValueKind::UInt64);
    EXPECT_EQ(ValueOf("float64").kind, ValueKind::Float64);
    EXPECT_EQ(ValueOf("float32").kind, ValueKind::Float32);
    EXPECT_EQ(ValueOf("bool").kind, ValueKind::Bool);
    EXPECT_EQ(ValueOf("string").kind, ValueKind::String);
    EXPECT_EQ(ValueOf("enum").kind, ValueKind::Enum);
    EXPECT_EQ(ValueOf("record").kind, ValueKind::Record);
    EXPECT_EQ(ValueOf("pair").kind, ValueKind::Record);
    EXPECT_EQ(ValueOf("rows").kind, ValueKind::List);
    EXPECT_EQ(ValueOf("set").kind, ValueKind::Set);
}

TEST(Schema, NamesTheTypes)
{
    EXPECT_EQ(EverythingSchema().name, "Everything");
    EXPECT_EQ(ValueOf("record").record().name, "Pupil");
    EXPECT_EQ(ValueOf("pair").record().name, "pair");
}

TEST(Schema, LeadsToWhatAValueIsMadeOf)
{
    EXPECT_EQ(ValueOf("enum").names->rows[2].name, "Alpha");
    EXPECT_EQ(&ValueOf("record").record(), &Reflected<Pupil>::Schema());
    EXPECT_EQ(ValueOf("pair").record().fields[1].key, "second");
    EXPECT_EQ(&ValueOf("points").element->record(), &Reflected<Point>::Schema());
    EXPECT_EQ(ValueOf("channels").element->names, ValueOf("enum").names);
    EXPECT_EQ(ValueOf("rows").element->element->kind, ValueKind::Int32);
    EXPECT_EQ(ValueOf("set").element->kind, ValueKind::Enum);
}

TEST(Schema, AValueWithoutADescriptionIsOther)
{
    EXPECT_EQ(Reflected<Weather>::Schema().fields[0].value->kind, ValueKind::Other);
}

TEST(Schema, FindsAFieldByItsKey)
{
    EXPECT_EQ(FindField(EverythingSchema(), "int32"), 0u);
    EXPECT_EQ(FindField(EverythingSchema(), "set"), 15u);
    EXPECT_EQ(FindField(EverythingSchema(), "uint8"), 2u);
    EXPECT_EQ(FindField(EverythingSchema(), "bool"), 7u);
    EXPECT_FALSE(FindField(EverythingSchema(), ""));
    EXPECT_FALSE(FindField(EverythingSchema(), "a"));
    EXPECT_FALSE(FindField(EverythingSchema(), "point"));
    EXPECT_FALSE(FindField(EverythingSchema(), "uint"));
    EXPECT_FALSE(FindField(EverythingSchema(), "uint88"));
    EXPECT_FALSE(FindField(EverythingSchema(), std::string_view("set\0", 4)));
}

TEST(Schema, GivesEachFieldItsChild)
{
    const PropertyTree tree =
        Map({{"", 1}, {"aaa", 2}, {"bool", 3}, {"boom", 4}, {"int32", 5}, {"set", 6}, {"uint", 7}, {"zzz", 8}});
    std::array<const PropertyTree*, 16> children;
    FindChildren(EverythingSchema(), tree.getMap(), children.data());
    for (std::size_t index = 0; index < children.size(); ++index)
    {
        const std::string_view key = EverythingSchema().fields[index].key;
        const bool isThere = key == "bool" || key == "int32" || key == "set";
        EXPECT_EQ(children[index], isThere ? &tree[key] : nullptr) << key;
    }
}

// Where no key of the map is a key of the record, and where every one is.
TEST(Schema, GivesChildrenFromAnyMap)
{
    std::array<const PropertyTree*, 16> children;
    for (const PropertyTree& tree : {Map({}), Map({{"a", 1}}), Map({{"zz", 1}})})
    {
        FindChildren(EverythingSchema(), tree.getMap(), children.data());
        EXPECT_EQ(std::ranges::count(children, nullptr), 16);
    }
    const PropertyTree full = TreeOf(Everything(), false);
    FindChildren(EverythingSchema(), full.getMap(), children.data());
    EXPECT_EQ(std::ranges::count(children, nullptr), 0);
    EXPECT_EQ(children[0], &full["int32"]);
    EXPECT_EQ(children[15], &full["set"]);
}

TEST(Schema, ComparesKeysAsUnsignedBytes)
{
    Weather weather;
    Read(weather, Map({{"x", 1}, {"\xc2\xb0", 25.5}}));
    EXPECT_EQ(weather.m_celsius.degrees, 25.5);
}

TEST(Schema, TellsKeysApartByEveryCharacter)
{
    for (std::size_t size = 0; size < 40; ++size)
    {
        const std::string key(size, 'k');
        const FieldSchema field{key, &OTHER_VALUE, {}};
        const SortedKey sorted(key, 0);
        std::atomic<const PropertyTreeKey*> knownKey = nullptr;
        std::atomic<bool> areKeysFound = false;
        const RecordSchema schema{
            .name = {},
            .fields = {&field, 1},
            .sortedKeys = &sorted,
            .knownKeys = &knownKey,
            .areKeysFound = &areKeysFound,
            .defaults = nullptr,
            .read = nullptr,
            .write = nullptr,
            .equal = nullptr,
            .readField = nullptr,
            .writeField = nullptr,
        };
        for (std::size_t changed = 0; changed <= size; ++changed)
        {
            std::string other = key;
            other.resize(std::max(size, changed + 1)); // and by one more
            other[changed] = changed % 2 == 0 ? 'a' : 'z';
            PropertyTree tree = Map({{other, 1}});
            const PropertyTree* child = &tree;
            FindChildren(schema, tree.getMap(), &child);
            EXPECT_EQ(child, nullptr) << size << ", " << changed;
            tree[key] = 2;
            FindChildren(schema, tree.getMap(), &child);
            EXPECT_EQ(child, &tree[key]) << size << ", " << changed;
        }
    }
}

TEST(Schema, ReachesARecordWithoutItsType)
{
    const RecordSchema& schema = Reflected<Pupil>::Schema();
    EXPECT_EQ(schema.defaults(), &Reflected<Pupil>::Default());

    Pupil pupil;
    const ReadFlags reading{.resetMissing = false};
    schema.readField(0, &pupil, Map({{"y", 9}}), &reading);
    EXPECT_EQ(pupil.m_point, (Point{-1, 9}));
    schema.read(&pupil, Map({{"point", Map({{"x", 4}})}}).getMap(), &reading);
    EXPECT_EQ(pupil.m_point, (Point{4, 9}));

    const WriteFlags writing{.resetTargets = true, .omitDefaults = true};
    PropertyTree child;
    schema.writeField(0, &pupil, child, &writing);
    EXPECT_EQ(child, Map({{"x", 4}, {"y", 9}}));
    PropertyTree whole = Map({});
    schema.write(&pupil, whole.getMap(), &writing, 0);
    EXPECT_EQ(whole, Map({{"point", Map({{"x", 4}, {"y", 9}})}}));
}

} // namespace
