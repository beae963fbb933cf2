#include "Exception/Exception.h"
#include "Proc/Settings/SettingsRecord.h"
#include "catalogue/CatalogueFixture.h"

// What an effect is, whatever it holds.
namespace Catalogue
{
namespace
{

class StrangeRecord : public Ombrel::Proc::SettingsRecord<StrangeRecord>
{
public:
    static const std::string CLASS_ID;

    bool operator==(const StrangeRecord&) const { return true; }
};

const std::string StrangeRecord::CLASS_ID{"EFFECT_STRANGE"};
} // namespace

TEST_P(CatalogueTest, IsAClassOfTheLibraryAtItsPlace)
{
    const EffectClass* effectClass = FindClass(GetParam().className);
    ASSERT_TRUE(effectClass);
    EXPECT_EQ(effectClass->classId, GetParam().classId);

    const Registration expected = GetParam().place == Place::None      ? Registration::None
                                  : GetParam().place == Place::Factory ? Registration::Factory
                                                                       : Registration::StartUpList;
    EXPECT_EQ(effectClass->registration, expected);
}

TEST_P(CatalogueTest, IsMadeByItsClassIdOrRefused)
{
    if (GetParam().place == Place::None)
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
    if (GetParam().place == Place::None)
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
    effect->Deserialize(SampleForm());
    const PropertyTree before = StoredForm(*effect);
    EXPECT_THROW(effect->SetEffectSettings(strange), std::bad_cast);
    EXPECT_THROW(effect->GetEffectSettings().IsEqualTo(strange), std::bad_cast);

    const char* otherId = GetParam().classId == "EFFECT_ACID" ? "EFFECT_VIBRANCE" : "EFFECT_ACID";
    const auto other = IEffectSettings::CreateEffectSettings(otherId);
    EXPECT_THROW(effect->Add(*other), std::bad_cast);
    EXPECT_EQ(StoredForm(*effect), before);
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

TEST_P(CatalogueTest, AddingIsForTheRecordAlone)
{
    const auto effect = Make();
    effect->Deserialize(Map({{"implName", "mine"}, {"helperSettings", Map({{"maxWidth", 640}})}}));
    const PropertyTree before = StoredForm(*effect);
    const auto other = Make();
    PropertyTree tree = SampleForm();
    tree["implName"] = "theirs";
    tree["helperSettings"] = Map({{"undoSet", true}});
    other->Deserialize(tree);
    effect->Add(*other);
    EXPECT_EQ(StoredForm(*effect)["implName"], before["implName"]);
    EXPECT_EQ(StoredForm(*effect)["helperSettings"], before["helperSettings"]);
    EXPECT_EQ(*effect == *Make(), !GetParam().isAdditive && GetParam().equalsItsCopy);
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
INSTANTIATE_TEST_SUITE_P(All, CatalogueTest, testing::ValuesIn(All()), [](const auto& row) { return row.param.className; });

} // namespace Catalogue
