#include "catalogue/CatalogueFixture.h"

#include <utility>

// What an effect holds, key by key.
namespace Catalogue
{
namespace
{

// A value that a field of the kind changes, and what becomes of it.
std::pair<PropertyTree, PropertyTree> ChangedByItsKind(Kind kind)
{
    switch (kind)
    {
    case Kind::Int32:
        return {4294967301, 5};
    case Kind::UInt32:
        return {-1, 4294967295};
    case Kind::UInt8:
        return {300, 44};
    case Kind::Int64:
    case Kind::UInt64:
        return {5000000000.75, 5000000000};
    case Kind::Float64:
        return {3, 3.0};
    default:
        return {};
    }
}
} // namespace

TEST_P(CatalogueTest, ListsItsKeysInByteOrder)
{
    if (!GetParam().hasPropertyAccess)
    {
        return;
    }
    std::vector<std::string> keys;
    std::ranges::transform(GetParam().fields, std::back_inserter(keys), &Field::key);
    std::ranges::sort(keys);
    EXPECT_EQ(Make()->GetPropertyAccess()->ListProperties(), keys);
}

TEST_P(CatalogueTest, ShowsEachDefault)
{
    const auto effect = Make();
    for (const Field& field : GetParam().fields)
    {
        EXPECT_EQ(Get(*effect, field.key), field.defaultValue) << field.key;
    }
}

TEST_P(CatalogueTest, LeavesEachDefaultOut)
{
    if (GetParam().hasPropertyAccess)
    {
        return; // its defaults are seen directly
    }
    for (const Field& field : GetParam().fields)
    {
        const auto effect = Make();
        Set(*effect, field.key, field.defaultValue);
        EXPECT_EQ(StoredForm(*effect), Map({})) << field.key;
    }
}

TEST_P(CatalogueTest, SetsOnePropertyAndLeavesTheOthers)
{
    for (const Field& field : GetParam().fields)
    {
        const auto effect = Make();
        Set(*effect, field.key, field.sample);
        const std::string& changed = field.target.empty() ? field.key : field.target;
        const PropertyTree& value = field.target.empty() ? field.sample : field.targetValue;
        for (const Field& other : GetParam().fields)
        {
            const bool isChanged = other.key == changed;
            EXPECT_EQ(Get(*effect, other.key), isChanged ? value : other.defaultValue) << field.key << ", " << other.key;
        }
        EXPECT_TRUE(StoredForm(*effect).contains(changed)) << field.key;
        PropertyTree withKey = DefaultTree();
        withKey[changed] = value;
        EXPECT_EQ(StoredForm(*effect).getMap().size(), withKey.getMap().size()) << field.key;
    }
}

TEST_P(CatalogueTest, StoresItsNumbersByTheirKinds)
{
    for (const Field& field : GetParam().fields)
    {
        const auto [given, stored] = ChangedByItsKind(field.kind);
        if (given.isNull())
        {
            continue;
        }
        const auto effect = Make();
        Set(*effect, field.key, given);
        EXPECT_EQ(Get(*effect, field.key), stored) << field.key;
    }
}

TEST_P(CatalogueTest, ComparesWhatItSays)
{
    for (const Field& field : GetParam().fields)
    {
        const auto effect = Make();
        Set(*effect, field.key, field.sample);
        EXPECT_EQ(*effect == *Make(), !field.isCompared) << field.key;
        EXPECT_EQ(*effect != *Make(), field.isCompared) << field.key;
        EXPECT_EQ(effect->GetEffectSettings().GetClassId(), GetParam().classId);
    }
}

TEST_P(CatalogueTest, IsEmptyUntilAKeyFillsIt)
{
    for (const Field& field : GetParam().fields)
    {
        const bool fills = !GetParam().filledBy || std::ranges::count(*GetParam().filledBy, field.key) != 0;
        const auto effect = Make();
        Set(*effect, field.key, field.sample);
        EXPECT_EQ(effect->GetEffectSettings().IsEmpty(), GetParam().isRecordEmpty && !fills) << field.key;
        EXPECT_EQ(effect->IsEmpty(), GetParam().isEmpty && !fills) << field.key;

        effect->Deserialize(Map({}));
        if (!field.isAppended)
        {
            EXPECT_EQ(effect->GetEffectSettings().IsEmpty(), GetParam().isRecordEmpty) << field.key;
            EXPECT_EQ(effect->IsEmpty(), GetParam().isEmpty) << field.key;
        }
    }
}

TEST_P(CatalogueTest, RoundTripKeepsEveryValue)
{
    const auto effect = Make();
    effect->Deserialize(SampleForm());
    const PropertyTree stored = StoredForm(*effect);

    const auto restored = Make();
    restored->Deserialize(stored);
    EXPECT_EQ(*restored == *effect, GetParam().equalsItsCopy);
    EXPECT_EQ(StoredForm(*restored), stored);
    for (const Field& field : GetParam().fields)
    {
        EXPECT_EQ(Get(*restored, field.key), Sample(field)) << field.key;
    }
}

TEST_P(CatalogueTest, MissingKeyResets)
{
    const auto effect = Make();
    effect->Deserialize(SampleForm());
    effect->Deserialize(Map({}));
    PropertyTree stored = DefaultTree();
    for (const Field& field : GetParam().fields)
    {
        EXPECT_EQ(Get(*effect, field.key), field.isAppended ? Sample(field) : field.defaultValue) << field.key;
        if (field.isAppended)
        {
            stored[field.key] = field.sample;
        }
    }
    EXPECT_EQ(StoredForm(*effect), stored);
}

TEST_P(CatalogueTest, UnknownKeyIsDropped)
{
    const auto effect = Make();
    effect->Deserialize(Map({{"no key of any effect", 5}}));
    EXPECT_EQ(StoredForm(*effect), DefaultTree());

    if (const auto access = effect->GetPropertyAccess())
    {
        access->SetProperty("no key of any effect", 5);
        EXPECT_EQ(StoredForm(*effect), DefaultTree());
        EXPECT_TRUE(access->GetProperty("no key of any effect").isNull());
        EXPECT_TRUE(access->GetProperty("implName").isNull());
        EXPECT_TRUE(access->GetProperty("helperSettings").isNull());
        EXPECT_TRUE(access->GetProperty("name").isNull());
    }
}

// A value of the wrong kind stops the read: what stands before it in the order of the keys is stored, the rest is not.
TEST_P(CatalogueTest, ReadsItsKeysInOrder)
{
    for (const Field& bad : GetParam().fields)
    {
        PropertyTree tree = SampleForm();
        switch (bad.kind)
        {
        case Kind::List:
        case Kind::Set:
        case Kind::ColorMap:
        case Kind::EffectList:
            continue; // take any kind
        case Kind::Record:
            tree[bad.key] = 5;
            break;
        case Kind::Enum:
            tree[bad.key] = bad.takesNumbers ? PropertyTree(5.0) : PropertyTree(5);
            break;
        default:
            tree[bad.key] = Map({});
            break;
        }
        const auto effect = Make();
        EXPECT_THROW(effect->Deserialize(tree), std::invalid_argument) << bad.key;

        bool isRead = true;
        for (const Field& field : GetParam().fields)
        {
            isRead = isRead && field.key != bad.key;
            EXPECT_EQ(Get(*effect, field.key), isRead ? Sample(field) : field.defaultValue) << bad.key << ", " << field.key;
        }
    }
}

TEST_P(CatalogueTest, KnowsEveryEnumName)
{
    for (const Field& field : GetParam().fields)
    {
        if (field.kind != Kind::Enum)
        {
            continue;
        }
        for (const EnumName& name : field.names)
        {
            const auto effect = Make();
            Set(*effect, field.key, std::string(name.name));
            EXPECT_EQ(field.number(*effect), name.value) << field.key << ", " << name.name;
            const PropertyTree shown = field.target.empty() ? PropertyTree(std::string(name.name)) : field.defaultValue;
            EXPECT_EQ(Get(*effect, field.key), shown) << field.key;
        }
    }
}

TEST_P(CatalogueTest, UnknownEnumNameIsTheFallback)
{
    for (const Field& field : GetParam().fields)
    {
        if (field.kind != Kind::Enum)
        {
            continue;
        }
        for (const PropertyTree& unknown : {PropertyTree("nonsense"), PropertyTree(""), Map({}), PropertyTree()})
        {
            const auto effect = Make();
            effect->Deserialize(SampleForm());
            Set(*effect, field.key, unknown);
            EXPECT_EQ(field.number(*effect), field.fallback) << field.key << ", " << testing::PrintToString(unknown);
        }
    }
}

// Within a nested record a missing key is reset to the nested record's own default, whatever the enclosing one has there.
TEST_P(CatalogueTest, NestedFieldsHaveDefaultsOfTheirOwn)
{
    for (const Field& field : GetParam().fields)
    {
        for (const Field& nested : field.nested)
        {
            PropertyTree expected = DefaultForm(field.nested);
            expected[nested.key] = nested.sample;

            const auto effect = Make();
            effect->Deserialize(Map({{field.key, Map({{nested.key, nested.sample}})}}));
            EXPECT_EQ(Get(*effect, field.key), expected) << field.key << '/' << nested.key;
            EXPECT_EQ(StoredForm(*effect), Map({{field.key, Map({{nested.key, nested.sample}})}}))
                << field.key << '/' << nested.key;

            effect->Deserialize(Map({{field.key, Map({})}}));
            EXPECT_EQ(Get(*effect, field.key), DefaultForm(field.nested)) << field.key;
        }
    }
}

TEST_P(CatalogueTest, SettingANestedFieldLeavesItsNeighbours)
{
    for (const Field& field : GetParam().fields)
    {
        for (const Field& nested : field.nested)
        {
            PropertyTree expected = field.defaultValue;
            expected[nested.key] = nested.sample;

            const auto effect = Make();
            Set(*effect, field.key, Map({{nested.key, nested.sample}}));
            EXPECT_EQ(Get(*effect, field.key), expected) << field.key << '/' << nested.key;
        }
    }
}
} // namespace Catalogue
