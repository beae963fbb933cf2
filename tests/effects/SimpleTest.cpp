#include "Proc/EffectSettings/EffectSettingsSimple.h"
#include "Proc/EffectSettings/VibranceSettings.h"
#include "Proc/Settings/SettingsEffectAcid.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace
{

using namespace Ombrel::PhotoCore;
using InputType = IEffectSettings::InputType;
using Ombrel::PropertyTree;
using Ombrel::Proc::SettingsEffectAcid;
using Support::Map;

std::shared_ptr<SettingsEffectAcid> Acid(int radius)
{
    auto record = std::make_shared<SettingsEffectAcid>();
    record->radius = radius;
    return record;
}

TEST(Simple, IsMadeWithItsDefaults)
{
    EXPECT_EQ(EffectSettingsSimple().GetInputType(), InputType::One);
    EXPECT_EQ(EffectSettingsSimple::CreateBase()->GetInputType(), InputType::One);

    const auto record = Acid(3);
    EXPECT_EQ(EffectSettingsSimple::Create(record)->GetInputType(), InputType::One);
    EXPECT_EQ(&EffectSettingsSimple::Create(record)->GetEffectSettings(), record.get());
    EXPECT_EQ(EffectSettingsSimple::Create(InputType::Var, record)->GetInputType(), InputType::Var);
    EXPECT_EQ(&EffectSettingsSimple::Create(InputType::Var, record)->GetEffectSettingsRef(), record.get());
}

TEST(Simple, TakesItsRecordOver)
{
    auto record = Acid(3);
    const EffectSettingsSimple effect(InputType::Two, std::move(record));
    EXPECT_FALSE(record);
    EXPECT_EQ(effect.GetEffectSettings().GetClassId(), "EFFECT_ACID");
}

TEST(Simple, HasItsOwnClassId)
{
    EXPECT_EQ(EffectSettingsSimple::CLASS_ID, "effectSettingsSimple");
    EXPECT_EQ(EffectSettingsSimple::Create(Acid(3))->GetClassId(), "effectSettingsSimple");
}

TEST(Simple, CloneSharesTheRecord)
{
    const auto effect = EffectSettingsSimple::Create(InputType::Two, Acid(3));
    effect->SetImplName("gpu");
    effect->HelperSetting().SetMaxWidth(640);
    const auto clone = effect->Clone();
    EXPECT_EQ(clone->GetImplName(), "gpu");
    EXPECT_EQ(clone->GetHelperSettings().GetMaxWidth(), 640u);
    EXPECT_EQ(clone->GetInputType(), InputType::Two);
    dynamic_cast<SettingsEffectAcid&>(clone->GetEffectSettingsRef()).radius = 9;
    EXPECT_EQ(dynamic_cast<const SettingsEffectAcid&>(effect->GetEffectSettings()).radius, 9);
}

TEST(Simple, StoresNeitherRecordNorInput)
{
    const auto effect = EffectSettingsSimple::Create(InputType::Var, Acid(3));
    effect->SetImplName("gpu");
    PropertyTree tree;
    EffectSettings::SerializePtr(tree, effect);
    EXPECT_EQ(tree, Map({{"implName", "gpu"}, {"name", "effectSettingsSimple"}}));

    std::shared_ptr<IEffectSettings> restored;
    EffectSettings::DeserializePtr(tree, restored);
    EXPECT_EQ(restored->GetInputType(), InputType::One);
    EXPECT_EQ(restored->GetImplName(), "gpu");
    EXPECT_EQ(restored->GetEffectSettings().GetClassId(), "effectSettingsSimple");

    effect->Deserialize(Map({{"radius", 77}}));
    EXPECT_EQ(dynamic_cast<const SettingsEffectAcid&>(effect->GetEffectSettings()).radius, 3);
    EXPECT_EQ(effect->GetInputType(), InputType::Var);
}

TEST(Simple, AssigningARecordCopiesNothingOfIt)
{
    const auto effect = EffectSettingsSimple::Create(Acid(3));
    effect->SetEffectSettings(*Acid(9));
    EXPECT_EQ(dynamic_cast<const SettingsEffectAcid&>(effect->GetEffectSettings()).radius, 3);
    EXPECT_NO_THROW(effect->SetEffectSettings(VibranceSettings().GetTypedSettings()));
}

TEST(Simple, AddsNothing)
{
    const auto effect = EffectSettingsSimple::Create(Acid(3));
    EXPECT_NO_THROW(effect->Add(VibranceSettings()));
    EXPECT_NO_THROW(effect->Add(*effect));
    EXPECT_EQ(dynamic_cast<const SettingsEffectAcid&>(effect->GetEffectSettings()).radius, 3);
}

TEST(Simple, EqualsNothing)
{
    const auto effect = EffectSettingsSimple::Create(Acid(3));
    EXPECT_FALSE(*effect == *effect);
    EXPECT_FALSE(effect->operator==(static_cast<const EffectSettingsSimple&>(*effect)));
    EXPECT_FALSE(effect->operator==(static_cast<const IEffectSettings&>(*effect)));
    EXPECT_TRUE(*effect != *effect);
    EXPECT_FALSE(*effect == VibranceSettings());
    EXPECT_FALSE(VibranceSettings() == *effect);
}

TEST(Simple, SetsInputAndImplName)
{
    EffectSettingsSimple effect;
    effect.SetInputType(InputType::Two);
    effect.SetImplName("gpu");
    EXPECT_EQ(effect.GetInputType(), InputType::Two);
    EXPECT_EQ(effect.GetImplName(), "gpu");
}

TEST(Simple, WithoutARecordOnlyQuestionsAreAnswered)
{
    EffectSettingsSimple effect;
    EXPECT_EQ(effect.GetEffectSettings().GetClassId(), "effectSettingsSimple");
    EXPECT_TRUE(effect.GetEffectSettings().IsEmpty());
    EXPECT_TRUE(effect.GetEffectSettings().IsEqualTo(EffectSettingsSimple().GetEffectSettings()));
    EXPECT_THROW(effect.GetEffectSettingsRef(), std::logic_error);
    EXPECT_THROW(effect.SetEffectSettings(*Acid(3)), std::logic_error);
    EXPECT_TRUE(effect.Clone());
    EXPECT_FALSE(VibranceSettings() == effect);
}

} // namespace
