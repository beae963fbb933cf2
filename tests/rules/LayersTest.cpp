#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Reflection/Folds.h"
#include "Proc/Settings/SettingsRecord.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <typeinfo>

// Settings classes as a caller of the library would write them, on each of the layers.
namespace
{

using namespace Ombrel;
using namespace Ombrel::PhotoCore;
using Support::Map;
using Support::StoredForm;

struct Record : Proc::SettingsRecord<Record>
{
    static const std::string CLASS_ID;

    static const Proc::RecordSchema& Schema() noexcept
    {
        return Proc::Describe<Record, Proc::FieldList<Proc::FieldDescriptor<&Record::m_value>>>();
    }

    bool operator==(const Record& other) const { return m_value == other.m_value; }

    std::int32_t m_value = 1;
};

const std::string Record::CLASS_ID{"EFFECT_OF_A_CALLER"};

class PlainTwo : public EffectSettingsTwoInput<Record, PlainTwo>
{
public:
    using EffectSettingsInput::EffectSettingsInput;
};

class ReflectedVar : public EffectSettingsVarInputReflection<Record, ReflectedVar>
{
public:
    using EffectSettingsImpl::Add;
    using EffectSettingsReflection::EffectSettingsReflection;

    bool IsAdditive() const override { return true; }
    void Add(const ReflectedVar& other) override { settings.m_value += other.settings.m_value; }
};

// Stores members of its own in place of its record's.
class StoresMembers : public EffectSettingsTwoInputReflection<Record, StoresMembers>
{
public:
    static const Proc::RecordSchema& Schema() noexcept
    {
        return Proc::Describe<StoresMembers, Proc::FieldList<Proc::FieldDescriptor<&StoresMembers::m_own>>>();
    }

    using EffectSettingsReflection::EffectSettingsReflection;

    double m_own = 0.5;
};

// Without a comparison of its own, and without a default constructor.
struct Bare : Proc::Settings
{
    static const std::string CLASS_ID;

    explicit Bare(std::int32_t value) : m_value(value) {}

    static Bare MakeDefault() { return Bare(4); }

    static const Proc::RecordSchema& Schema() noexcept
    {
        return Proc::Describe<Bare, Proc::FieldList<Proc::FieldDescriptor<&Bare::m_value>>>();
    }

    const std::string& GetClassId() const override { return CLASS_ID; }
    Settings* Clone() const override { return new Bare(*this); }
    bool IsEqualTo(const Settings&) const override { return false; }

    std::int32_t m_value;
    std::int32_t m_notStored = 0;
};

const std::string Bare::CLASS_ID{"EFFECT_BARE"};

class BareSettings : public EffectSettingsOneInputReflection<Bare, BareSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;
};

// Has the class id of another class.
class Impostor : public EffectSettingsOneInput<Record, Impostor>
{
public:
    using EffectSettingsInput::EffectSettingsInput;
};

TEST(Layers, TellTheInput)
{
    EXPECT_EQ(PlainTwo().GetInputType(), IEffectSettings::InputType::Two);
    EXPECT_EQ(ReflectedVar().GetInputType(), IEffectSettings::InputType::Var);
    EXPECT_EQ(BareSettings().GetInputType(), IEffectSettings::InputType::One);
}

TEST(Layers, WithoutReflectionOnlyTheBaseIsStored)
{
    PlainTwo effect;
    effect.GetTypedSettings().m_value = 9;
    EXPECT_EQ(StoredForm(effect), Map({}));
    EXPECT_FALSE(effect.GetPropertyAccess());
    effect.Deserialize(Map({{"value", 3}, {"implName", "gpu"}}));
    EXPECT_EQ(effect.GetTypedSettings().m_value, 9);
    EXPECT_EQ(effect.GetImplName(), "gpu");
}

TEST(Layers, WithReflectionTheRecordIsStored)
{
    ReflectedVar effect;
    effect.GetTypedSettings().m_value = 9;
    EXPECT_EQ(StoredForm(effect), Map({{"value", 9}}));
    EXPECT_TRUE(effect.GetPropertyAccess());
    EXPECT_EQ(*std::as_const(effect).GetPropertyAccess()->ListProperties().begin(), "value");
}

TEST(Layers, AClassWithAFieldListStoresItself)
{
    StoresMembers effect;
    effect.m_own = 2.0;
    effect.GetTypedSettings().m_value = 9;
    EXPECT_EQ(StoredForm(effect), Map({{"own", 2.0}}));
    effect.Deserialize(Map({{"value", 3}}));
    EXPECT_EQ(effect.m_own, 0.5);
    EXPECT_EQ(effect.GetTypedSettings().m_value, 9);
    EXPECT_FALSE(effect.GetPropertyAccess());
    EXPECT_FALSE(std::as_const(effect).GetPropertyAccess());
}

TEST(Layers, TheSchemaTellsWhatIsStored)
{
    EXPECT_EQ(PlainTwo::GetSchema(), nullptr);
    EXPECT_EQ(ReflectedVar::GetSchema()->fields[0].key, "value");
    EXPECT_EQ(StoresMembers::GetSchema()->fields[0].key, "own");
}

TEST(Layers, TheUntypedAddReachesTheTypedOne)
{
    ReflectedVar effect;
    const IEffectSettings& other = ReflectedVar();
    effect.Add(other);
    EXPECT_EQ(effect.GetTypedSettings().m_value, 2);
    effect.Add(effect);
    EXPECT_EQ(effect.GetTypedSettings().m_value, 4);
    EXPECT_THROW(effect.Add(PlainTwo()), std::bad_cast);
}

TEST(Layers, WithoutAComparisonTheFieldsAreCompared)
{
    BareSettings a;
    BareSettings b;
    EXPECT_EQ(a.GetTypedSettings().m_value, 4);
    b.GetTypedSettings().m_notStored = 1;
    EXPECT_TRUE(a == b);
    b.GetTypedSettings().m_value = 5;
    EXPECT_FALSE(a == b);
    EXPECT_EQ(StoredForm(b), Map({{"value", 5}}));
}

TEST(Layers, TheSameIdOfAnotherClassIsABadCast)
{
    EXPECT_THROW((void)(PlainTwo() == Impostor()), std::bad_cast);
    EXPECT_THROW((void)(Impostor() != PlainTwo()), std::bad_cast);
    EXPECT_FALSE(PlainTwo() == BareSettings());
}

TEST(Layers, AreMadeOfARecord)
{
    Record record;
    record.m_value = 6;
    EXPECT_EQ(PlainTwo::Create(record)->GetTypedSettings().m_value, 6);
    EXPECT_EQ(ReflectedVar(record).GetTypedSettings().m_value, 6);
    EXPECT_EQ(PlainTwo::CreateBase()->GetClassId(), "EFFECT_OF_A_CALLER");
    const auto clone = ReflectedVar(record).Clone();
    EXPECT_TRUE(dynamic_cast<const ReflectedVar*>(clone.get()));
}

} // namespace
