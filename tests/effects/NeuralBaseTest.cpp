#include "Exception/Exception.h"
#include "Proc/EffectSettings/IEffectSettings.h"
#include "Proc/Settings/SettingsEffectDeepNeuralProcessor.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <typeinfo>

namespace
{

using Ombrel::PhotoCore::IEffectSettings;
using Ombrel::Proc::BaseSettingsModelFile;
using Ombrel::Proc::BaseSettingsNeural;
using Ombrel::Proc::Settings;
using Ombrel::Proc::SettingsEffectDeepNeuralProcessor;
using Support::Map;
using Support::StoredForm;

struct Change
{
    const char* member;
    void (*apply)(BaseSettingsNeural&);
};

// Every member that the comparison looks at.
constexpr Change CHANGES[] = {
    {"modelFile", [](BaseSettingsNeural& record) { record.modelFile = 4; }},
    {"neuralOption1", [](BaseSettingsNeural& record) { record.neuralOption1 = false; }},
    {"neuralOption2", [](BaseSettingsNeural& record) { record.neuralOption2 = false; }},
    {"neuralOption3", [](BaseSettingsNeural& record) { record.neuralOption3 = false; }},
    {"neuralOption4", [](BaseSettingsNeural& record) { record.neuralOption4 = true; }},
    {"neuralMode", [](BaseSettingsNeural& record) { record.neuralMode = 7; }},
};

void ChangeAll(BaseSettingsNeural& record)
{
    for (const Change& change : CHANGES)
    {
        change.apply(record);
    }
}

void ExpectAllChanged(const BaseSettingsNeural& record)
{
    EXPECT_EQ(record.modelFile, 4);
    EXPECT_FALSE(record.neuralOption1);
    EXPECT_FALSE(record.neuralOption2);
    EXPECT_FALSE(record.neuralOption3);
    EXPECT_TRUE(record.neuralOption4);
    EXPECT_EQ(record.neuralMode, 7);
}

void ExpectDefault(const BaseSettingsNeural& record, int mode)
{
    EXPECT_EQ(record.modelFile, 0);
    EXPECT_TRUE(record.neuralOption1);
    EXPECT_TRUE(record.neuralOption2);
    EXPECT_TRUE(record.neuralOption3);
    EXPECT_FALSE(record.neuralOption4);
    EXPECT_EQ(record.neuralMode, mode);
}

BaseSettingsNeural& RecordOf(IEffectSettings& effect)
{
    return dynamic_cast<BaseSettingsNeural&>(effect.GetEffectSettingsRef());
}

struct NeuralEffect
{
    const char* classId;
    int defaultMode;
};

void PrintTo(const NeuralEffect& effect, std::ostream* out)
{
    *out << effect.classId;
}

class NeuralEffectTest : public testing::TestWithParam<NeuralEffect>
{
protected:
    static std::shared_ptr<IEffectSettings> Make() { return IEffectSettings::CreateEffectSettings(GetParam().classId); }
};

TEST_P(NeuralEffectTest, StartsWithTheDefaultsOfItsBase)
{
    ExpectDefault(RecordOf(*Make()), GetParam().defaultMode);
}

TEST_P(NeuralEffectTest, ComparesEveryMemberOfItsBase)
{
    for (const Change& change : CHANGES)
    {
        const auto effect = Make();
        const auto other = Make();
        ASSERT_TRUE(*effect == *other);
        ASSERT_TRUE(effect->GetEffectSettings().IsEqualTo(other->GetEffectSettings()));
        change.apply(RecordOf(*effect));
        EXPECT_FALSE(*effect == *other) << change.member;
        EXPECT_FALSE(*other == *effect) << change.member;
        EXPECT_FALSE(effect->GetEffectSettings().IsEqualTo(other->GetEffectSettings())) << change.member;

        change.apply(RecordOf(*other));
        EXPECT_TRUE(*effect == *other) << change.member;
    }
}

TEST_P(NeuralEffectTest, StoresNothingOfItsBase)
{
    const auto effect = Make();
    ChangeAll(RecordOf(*effect));
    EXPECT_EQ(StoredForm(*effect), Map({}));

    const auto restored = Make();
    restored->Deserialize(StoredForm(*effect));
    ExpectDefault(RecordOf(*restored), GetParam().defaultMode);
}

TEST_P(NeuralEffectTest, ReadingLeavesItsBaseAlone)
{
    const auto effect = Make();
    ChangeAll(RecordOf(*effect));
    effect->Deserialize(Map({{"modelFile", 1}, {"neuralOption1", true}, {"neuralMode", 2}}));
    ExpectAllChanged(RecordOf(*effect));
}

TEST_P(NeuralEffectTest, CopiesItsBase)
{
    const auto effect = Make();
    ChangeAll(RecordOf(*effect));
    ExpectAllChanged(RecordOf(*effect->Clone()));

    const std::unique_ptr<Settings> record(effect->GetEffectSettings().Clone());
    ExpectAllChanged(dynamic_cast<BaseSettingsNeural&>(*record));

    const auto receiver = Make();
    receiver->SetEffectSettings(*record);
    ExpectAllChanged(RecordOf(*receiver));
}

TEST_P(NeuralEffectTest, AddingLeavesItsBaseAlone)
{
    const auto effect = Make();
    const auto other = Make();
    ChangeAll(RecordOf(*other));
    effect->Add(*other);
    ExpectDefault(RecordOf(*effect), GetParam().defaultMode);
}

TEST_P(NeuralEffectTest, IsNeverEmpty)
{
    const auto effect = Make();
    EXPECT_FALSE(effect->GetEffectSettings().IsEmpty());
    ChangeAll(RecordOf(*effect));
    EXPECT_FALSE(effect->GetEffectSettings().IsEmpty());
    EXPECT_FALSE(effect->IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(All, NeuralEffectTest,
                         testing::Values(NeuralEffect{"EFFECT_DEEP_ADJUSTER", 0}, NeuralEffect{"EFFECT_DEEP_ALIGNER", 0},
                                         NeuralEffect{"EFFECT_DEEP_AUTO_RETOUCHER", 0},
                                         NeuralEffect{"EFFECT_DEEP_COLORIZER", 1}, NeuralEffect{"EFFECT_DEEP_DENOISER", 0},
                                         NeuralEffect{"EFFECT_DEEP_ENHANCER", 0}, NeuralEffect{"EFFECT_DEEP_IMAGE_ENHANCER", 0},
                                         NeuralEffect{"EFFECT_DEEP_LUMA_UPSCALER", 0}, NeuralEffect{"EFFECT_DEEP_RESTORER", 0},
                                         NeuralEffect{"EFFECT_DEEP_SUPER_RESOLUTOR", 0},
                                         NeuralEffect{"EFFECT_IMAGE_INPAINTER", 1}),
                         [](const auto& effect) { return std::string(effect.param.classId); });

template <class Record> class NeuralBaseTest : public testing::Test
{
};

using BaseRecords = testing::Types<BaseSettingsModelFile, BaseSettingsNeural, SettingsEffectDeepNeuralProcessor>;
TYPED_TEST_SUITE(NeuralBaseTest, BaseRecords);

TYPED_TEST(NeuralBaseTest, IsAWholeRecordWithoutASettingsClass)
{
    TypeParam record;
    record.modelFile = 4;
    EXPECT_EQ(record.GetClassId(), TypeParam::CLASS_ID);
    EXPECT_FALSE(record.IsEmpty());

    const std::unique_ptr<Settings> copy(record.Clone());
    const Settings& object = *copy;
    EXPECT_EQ(typeid(object), typeid(TypeParam));
    EXPECT_TRUE(copy->IsEqualTo(record));
    EXPECT_FALSE(TypeParam().IsEqualTo(*copy));

    EXPECT_THROW(IEffectSettings::CreateEffectSettings(TypeParam::CLASS_ID), Ombrel::Exception);
}

TEST(NeuralBase, ClassIds)
{
    EXPECT_EQ(BaseSettingsModelFile::CLASS_ID, "BASE_MODELFILE");
    EXPECT_EQ(BaseSettingsNeural::CLASS_ID, "BASE_NEURAL");
    EXPECT_EQ(SettingsEffectDeepNeuralProcessor::CLASS_ID, "EFFECT_DEEP_NEURAL_PROCESSOR");
}

TEST(NeuralBase, EachComparesWhatItKnows)
{
    for (const Change& change : CHANGES)
    {
        BaseSettingsNeural neural;
        change.apply(neural);
        EXPECT_FALSE(neural == BaseSettingsNeural()) << change.member;
        const bool isModelFile = std::string(change.member) == "modelFile";
        EXPECT_EQ(static_cast<const BaseSettingsModelFile&>(neural) == BaseSettingsModelFile(), !isModelFile) << change.member;
        EXPECT_EQ(BaseSettingsModelFile().IsEqualTo(neural), !isModelFile) << change.member;
    }
}

TEST(NeuralBase, ComparingCastsTheArgumentToTheOwnType)
{
    EXPECT_TRUE(BaseSettingsNeural().IsEqualTo(SettingsEffectDeepNeuralProcessor()));
    EXPECT_THROW(SettingsEffectDeepNeuralProcessor().IsEqualTo(BaseSettingsNeural()), std::bad_cast);
    EXPECT_THROW(BaseSettingsNeural().IsEqualTo(BaseSettingsModelFile()), std::bad_cast);
}

} // namespace
