#include "catalogue/Catalogue.h"

#include "Exception/Exception.h"
#include "Proc/EffectSettings/EffectSettings.h"
#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "Proc/Settings/SettingsRecord.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <typeindex>
#include <typeinfo>

namespace
{

using Catalogue::Effect;
using Catalogue::Field;
using Catalogue::Kind;
using Ombrel::PropertyTree;
using Ombrel::PhotoCore::EffectClass;
using Ombrel::PhotoCore::EffectClasses;
using Ombrel::PhotoCore::EffectSettings;
using Ombrel::PhotoCore::HelperSettings;
using Ombrel::PhotoCore::IEffectSettings;
using Ombrel::PhotoCore::Registration;
using Support::Map;
using Support::StoredForm;

const EffectClass* FindClass(std::string_view className)
{
    const auto classes = EffectClasses();
    const auto found = std::ranges::find(classes, className, &EffectClass::className);
    return found == classes.end() ? nullptr : &*found;
}

std::type_index TypeOf(const std::shared_ptr<IEffectSettings>& effect)
{
    const IEffectSettings& object = *effect;
    return typeid(object);
}

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
    case Kind::Float32:
        return {0.1, 0.10000000149011612};
    default:
        return {};
    }
}

class StrangeRecord : public Ombrel::Proc::SettingsRecord<StrangeRecord>
{
public:
    static const std::string CLASS_ID;

    bool operator==(const StrangeRecord&) const { return true; }
};

const std::string StrangeRecord::CLASS_ID{"EFFECT_STRANGE"};

class CatalogueTest : public testing::TestWithParam<Effect>
{
protected:
    static std::shared_ptr<IEffectSettings> Make()
    {
        const EffectClass* effectClass = FindClass(GetParam().className);
        if (!effectClass)
        {
            throw std::logic_error("the library has no class " + GetParam().className);
        }
        return effectClass->create();
    }

    // What stands under a key, in full stored form. A class without property access shows only what its tree does not leave
    // out.
    static PropertyTree Get(const IEffectSettings& effect, const std::string& key)
    {
        if (const auto access = effect.GetPropertyAccess())
        {
            return access->GetProperty(key);
        }
        const Field& field = *std::ranges::find(GetParam().fields, key, &Field::key);
        const PropertyTree tree = StoredForm(effect);
        if (!tree.contains(key) || field.kind != Kind::Record)
        {
            return tree.contains(key) ? tree[key] : field.defaultValue;
        }
        PropertyTree full = Catalogue::DefaultForm(field.nested);
        for (const auto& [nestedKey, child] : tree[key].getMap())
        {
            full[nestedKey] = child;
        }
        return full;
    }

    // What a default object is stored as.
    static PropertyTree DefaultTree()
    {
        PropertyTree tree = Map({});
        for (const Field& field : GetParam().fields)
        {
            if (field.isAlwaysWritten)
            {
                tree[field.key] = Map({});
            }
        }
        return tree;
    }

    // Without property access the other keys are reset.
    static void Set(IEffectSettings& effect, const std::string& key, const PropertyTree& value)
    {
        if (const auto access = effect.GetPropertyAccess())
        {
            access->SetProperty(key, value);
            return;
        }
        effect.Deserialize(Map({{key, value}}));
    }

    // A value that comes back as it is when all keys are set together.
    static PropertyTree Sample(const Field& field)
    {
        const bool isTarget =
            std::ranges::any_of(GetParam().fields, [&field](const Field& other) { return other.target == field.key; });
        return field.isScaled || isTarget || !field.target.empty() ? field.defaultValue : field.sample;
    }

    // A map in which every key of the effect stands with its sample.
    static PropertyTree SampleForm()
    {
        PropertyTree tree = Map({});
        for (const Field& field : GetParam().fields)
        {
            tree[field.key] = Sample(field);
        }
        return tree;
    }
};

TEST_P(CatalogueTest, IsAClassOfTheLibraryAtItsPlace)
{
    const EffectClass* effectClass = FindClass(GetParam().className);
    ASSERT_TRUE(effectClass);
    EXPECT_EQ(effectClass->classId, GetParam().classId);

    const Registration expected = GetParam().place == Catalogue::Place::None      ? Registration::None
                                  : GetParam().place == Catalogue::Place::Factory ? Registration::Factory
                                                                                  : Registration::StartUpList;
    EXPECT_EQ(effectClass->registration, expected);
}

TEST_P(CatalogueTest, IsMadeByItsClassIdOrRefused)
{
    if (GetParam().place == Catalogue::Place::None)
    {
        EXPECT_THROW(IEffectSettings::CreateEffectSettings(GetParam().classId), Ombrel::Exception);
        return;
    }
    EXPECT_EQ(TypeOf(IEffectSettings::CreateEffectSettings(GetParam().classId)), TypeOf(Make()));
}

TEST_P(CatalogueTest, KnowsItsIdAndInput)
{
    const auto effect = Make();
    EXPECT_EQ(effect->GetClassId(), GetParam().classId);
    EXPECT_EQ(effect->GetEffectSettings().GetClassId(), GetParam().classId);
    EXPECT_EQ(effect->GetInputType(), GetParam().inputType);
    EXPECT_EQ(effect->IsAdditive(), GetParam().isAdditive);
}

TEST_P(CatalogueTest, DefaultStoresNoValue)
{
    EXPECT_EQ(StoredForm(*Make()), DefaultTree());
}

TEST_P(CatalogueTest, DefaultAnswersWhetherItIsEmpty)
{
    const auto effect = Make();
    EXPECT_EQ(effect->IsEmpty(), GetParam().isEmpty);
    EXPECT_EQ(effect->GetEffectSettings().IsEmpty(), GetParam().isRecordEmpty);
}

TEST_P(CatalogueTest, HasPropertyAccessAsTold)
{
    const auto effect = Make();
    EXPECT_EQ(effect->GetPropertyAccess() != nullptr, GetParam().hasPropertyAccess);
    EXPECT_EQ(std::as_const(*effect).GetPropertyAccess() != nullptr, GetParam().hasPropertyAccess);
}

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
        for (const Catalogue::EnumName& name : field.names)
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
            PropertyTree expected = Catalogue::DefaultForm(field.nested);
            expected[nested.key] = nested.sample;

            const auto effect = Make();
            effect->Deserialize(Map({{field.key, Map({{nested.key, nested.sample}})}}));
            EXPECT_EQ(Get(*effect, field.key), expected) << field.key << '/' << nested.key;
            EXPECT_EQ(StoredForm(*effect), Map({{field.key, Map({{nested.key, nested.sample}})}}))
                << field.key << '/' << nested.key;

            effect->Deserialize(Map({{field.key, Map({})}}));
            EXPECT_EQ(Get(*effect, field.key), Catalogue::DefaultForm(field.nested)) << field.key;
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

TEST_P(CatalogueTest, CloneIsEqualAndApart)
{
    const auto effect = Make();
    PropertyTree tree = SampleForm();
    tree["implName"] = "other";
    tree["helperSettings"] = Map({{"maxWidth", 640}});
    effect->Deserialize(tree);

    const auto clone = effect->Clone();
    EXPECT_EQ(TypeOf(clone), TypeOf(effect));
    EXPECT_EQ(*clone == *effect, GetParam().equalsItsCopy);
    PropertyTree expected = StoredForm(*effect);
    if (!GetParam().isClonedWhole)
    {
        expected.getMap().erase("implName");
        expected.getMap().erase("helperSettings");
    }
    EXPECT_EQ(StoredForm(*clone), expected);

    clone->Deserialize(Map({}));
    for (const Field& field : GetParam().fields)
    {
        EXPECT_EQ(Get(*effect, field.key), Sample(field)) << field.key;
    }
}

TEST_P(CatalogueTest, PolymorphicFormComesBack)
{
    const auto effect = Make();
    effect->Deserialize(SampleForm());
    PropertyTree tree;
    EffectSettings::SerializePtr(tree, effect);
    EXPECT_EQ(tree["name"], GetParam().classId);
    if (GetParam().place == Catalogue::Place::None)
    {
        return;
    }
    std::shared_ptr<IEffectSettings> restored;
    EffectSettings::DeserializePtr(tree, restored);
    EXPECT_EQ(StoredForm(*restored), StoredForm(*effect));
}

TEST_P(CatalogueTest, RefusesOtherTypes)
{
    if (!GetParam().equalsItsCopy)
    {
        return; // the simple effect takes any record, and knows nothing of any other effect
    }
    const StrangeRecord strange;
    const auto effect = Make();
    EXPECT_THROW(effect->SetEffectSettings(strange), std::bad_cast);
    EXPECT_THROW(effect->GetEffectSettings().IsEqualTo(strange), std::bad_cast);

    const char* otherId = GetParam().classId == "EFFECT_ACID" ? "EFFECT_VIBRANCE" : "EFFECT_ACID";
    const auto other = IEffectSettings::CreateEffectSettings(otherId);
    EXPECT_THROW(effect->Add(*other), std::bad_cast);
    EXPECT_FALSE(*effect == *other);
    EXPECT_TRUE(*effect != *other);
}

TEST_P(CatalogueTest, RecordsAreCopiedAndCompared)
{
    if (!GetParam().equalsItsCopy)
    {
        return;
    }
    const auto effect = Make();
    effect->Deserialize(SampleForm());
    const std::unique_ptr<Ombrel::Proc::Settings> copy(effect->GetEffectSettings().Clone());
    EXPECT_TRUE(effect->GetEffectSettings().IsEqualTo(*copy));

    const auto receiver = Make();
    receiver->HelperSetting().SetMaxWidth(640);
    receiver->SetEffectSettings(*copy);
    EXPECT_EQ(receiver->GetHelperSettings().GetMaxWidth(), 640u);
    if (!GetParam().hasPropertyAccess)
    {
        EXPECT_EQ(StoredForm(*receiver).getMap().size(), 1u); // its keys are not the record's
        return;
    }
    for (const Field& field : GetParam().fields)
    {
        EXPECT_EQ(Get(*receiver, field.key), Sample(field)) << field.key;
    }
}

TEST_P(CatalogueTest, AddingWithoutBeingAdditiveDoesNothing)
{
    if (GetParam().isAdditive)
    {
        return;
    }
    const auto effect = Make();
    const auto other = Make();
    other->Deserialize(SampleForm());
    effect->Add(*other);
    EXPECT_EQ(StoredForm(*effect), DefaultTree());
}

INSTANTIATE_TEST_SUITE_P(All, CatalogueTest, testing::ValuesIn(Catalogue::All()),
                         [](const auto& row) { return row.param.className; });

TEST(Catalogue, HasARowForEveryClassOfTheLibrary)
{
    for (const EffectClass& effectClass : EffectClasses())
    {
        EXPECT_EQ(std::ranges::count(Catalogue::All(), std::string(effectClass.className), &Effect::className), 1)
            << effectClass.className;
    }
    EXPECT_EQ(EffectClasses().size(), Catalogue::All().size());
}

TEST(Catalogue, StartUpListIsInOrder)
{
    int last = 0;
    for (const EffectClass& effectClass : EffectClasses())
    {
        if (effectClass.registration != Registration::StartUpList)
        {
            continue;
        }
        const auto row = std::ranges::find(Catalogue::All(), std::string(effectClass.className), &Effect::className);
        ASSERT_NE(row, Catalogue::All().end()) << effectClass.className;
        EXPECT_GT(static_cast<int>(row->place), last) << effectClass.className;
        last = static_cast<int>(row->place);
    }
}

} // namespace

namespace Catalogue
{

void PrintTo(const Effect& effect, std::ostream* out)
{
    *out << effect.className;
}

} // namespace Catalogue
