#include "Proc/EffectSettings/AcidSettings.h"
#include "Proc/EffectSettings/EffectSettingsSimple.h"
#include "Proc/EffectSettings/VibranceSettings.h"

#include <gtest/gtest.h>

namespace
{

using namespace Ombrel::PhotoCore;

std::shared_ptr<IEffectSettings> Acid(int radius)
{
    Ombrel::Proc::SettingsEffectAcid record;
    record.radius = radius;
    return AcidSettings::Create(record);
}

// Counts how often it is compared.
class CountingSettings : public EffectSettingsSimple
{
public:
    bool operator==(const IEffectSettings&) const override
    {
        ++s_comparisons;
        return true;
    }
    using EffectSettingsSimple::operator==;

    static inline int s_comparisons = 0;
};

TEST(Equals, ComparesPointersFirst)
{
    EXPECT_TRUE(IEffectSettings::Equals(nullptr, nullptr));
    EXPECT_FALSE(IEffectSettings::Equals(Acid(1), nullptr));
    EXPECT_FALSE(IEffectSettings::Equals(nullptr, Acid(1)));
    EXPECT_TRUE(IEffectSettings::Equals(Acid(1), Acid(1)));
    EXPECT_FALSE(IEffectSettings::Equals(Acid(1), Acid(2)));
    EXPECT_FALSE(IEffectSettings::Equals(Acid(1), VibranceSettings::CreateBase()));
}

TEST(Equals, ASimpleEffectEqualsItselfByItsPointerOnly)
{
    const std::shared_ptr<IEffectSettings> simple = EffectSettingsSimple::CreateBase();
    EXPECT_TRUE(IEffectSettings::Equals(simple, simple));
    EXPECT_FALSE(*simple == *simple);
    EXPECT_FALSE(IEffectSettings::Equals(simple, simple->Clone()));
}

TEST(Equal, ComparesListsInOrder)
{
    EXPECT_TRUE(IEffectSettings::Equal({}, {}));
    EXPECT_TRUE(IEffectSettings::Equal({Acid(1), nullptr, Acid(2)}, {Acid(1), nullptr, Acid(2)}));
    EXPECT_FALSE(IEffectSettings::Equal({Acid(1), Acid(2)}, {Acid(2), Acid(1)}));
    EXPECT_FALSE(IEffectSettings::Equal({nullptr}, {Acid(2)}));
    EXPECT_FALSE(IEffectSettings::Equal({EffectSettingsSimple::CreateBase()}, {EffectSettingsSimple::CreateBase()}));
}

TEST(Equal, OtherLengthsAreUnequalWithoutAComparison)
{
    const auto counting = std::make_shared<CountingSettings>();
    const auto other = std::make_shared<CountingSettings>();
    CountingSettings::s_comparisons = 0;
    EXPECT_FALSE(IEffectSettings::Equal({counting, counting}, {other}));
    EXPECT_FALSE(IEffectSettings::Equal({}, {other}));
    EXPECT_EQ(CountingSettings::s_comparisons, 0);
    EXPECT_TRUE(IEffectSettings::Equal({counting}, {other}));
    EXPECT_EQ(CountingSettings::s_comparisons, 1);
}

TEST(Equal, TheFirstDifferenceEndsIt)
{
    const auto counting = std::make_shared<CountingSettings>();
    const auto other = std::make_shared<CountingSettings>();
    CountingSettings::s_comparisons = 0;
    EXPECT_FALSE(IEffectSettings::Equal({Acid(1), counting}, {Acid(2), other}));
    EXPECT_EQ(CountingSettings::s_comparisons, 0);
}

TEST(Find, ReturnsTheFirstOfItsId)
{
    const IEffectSettings::List list{VibranceSettings::CreateBase(), nullptr, Acid(1), Acid(2)};
    EXPECT_EQ(IEffectSettings::Find(list, "EFFECT_ACID"), list[2]);
    EXPECT_EQ(IEffectSettings::Find(IEffectSettings::ToConstList(list), "EFFECT_ACID"), list[2]);
    EXPECT_FALSE(IEffectSettings::Find(list, "EFFECT_ACI"));
    EXPECT_FALSE(IEffectSettings::Find(list, ""));
    EXPECT_FALSE(IEffectSettings::Find(IEffectSettings::List{}, "EFFECT_ACID"));
}

TEST(Find, AsksTheRecordForItsId)
{
    const auto acidRecord = std::make_shared<Ombrel::Proc::SettingsEffectAcid>();
    const IEffectSettings::List list{EffectSettingsSimple::CreateBase(), EffectSettingsSimple::Create(acidRecord)};
    EXPECT_EQ(IEffectSettings::Find(list, "EFFECT_ACID"), list[1]);
    EXPECT_EQ(IEffectSettings::Find(list, "effectSettingsSimple"), list[0]);
}

TEST(ToConstList, SharesTheEffects)
{
    const IEffectSettings::List list{Acid(1), nullptr, Acid(2)};
    const IEffectSettings::ConstList constList = IEffectSettings::ToConstList(list);
    ASSERT_EQ(constList.size(), 3u);
    EXPECT_EQ(constList[0], list[0]);
    EXPECT_EQ(constList[1], nullptr);
    EXPECT_EQ(constList[2], list[2]);
    EXPECT_EQ(list[0].use_count(), 2);
}

} // namespace
