#include "PhotoUtil/ISerializable.h"
#include "Proc/EffectSettings/AcidSettings.h"
#include "PropertyTree/PropertyTree.h"

#include <gtest/gtest.h>

#include <cstring>

namespace
{

using namespace Ombrel;
using PhotoCore::AcidSettings;
using PhotoCore::IEffectSettings;
using PhotoUtil::ISerializable;
using PhotoUtil::ISerializableBase;
using Proc::Settings;
using Access = ISerializableBase::IPropertyAccess;

// Where a virtual function stands in the table, from 1. The platform's ABI keeps its byte offset, plus one, in the first word
// of a pointer to it. A virtual destructor takes two places but cannot be pointed to.
template <class Function> std::size_t SlotOf(Function function)
{
    std::size_t word = 0;
    std::memcpy(&word, &function, sizeof(word));
    return (word - 1) / sizeof(void*) + 1;
}

template <class Class, class Result, class... Arguments> auto Constant(Result (Class::*function)(Arguments...) const)
{
    return function;
}

template <class Class, class Result, class... Arguments> auto Changing(Result (Class::*function)(Arguments...))
{
    return function;
}

TEST(VirtualOrder, OfSerializableBase)
{
    EXPECT_EQ(SlotOf(&ISerializableBase::GetClassId), 1u);
    EXPECT_EQ(SlotOf(&ISerializableBase::Serialize), 2u);
    EXPECT_EQ(SlotOf(&ISerializableBase::Deserialize), 3u);
    EXPECT_EQ(SlotOf(Constant<ISerializableBase>(&ISerializableBase::GetPropertyAccess)), 4u);
    EXPECT_EQ(SlotOf(Changing<ISerializableBase>(&ISerializableBase::GetPropertyAccess)), 5u);
    // 6 and 7: the destructor.
}

TEST(VirtualOrder, OfSerializable)
{
    EXPECT_EQ(SlotOf(&ISerializable::operator==), 8u);
}

TEST(VirtualOrder, OfPropertyAccess)
{
    // 1 and 2: the destructor.
    EXPECT_EQ(SlotOf(&Access::GetProperty), 3u);
    EXPECT_EQ(SlotOf(&Access::SetProperty), 4u);
    EXPECT_EQ(SlotOf(&Access::ListProperties), 5u);
}

TEST(VirtualOrder, OfSettings)
{
    EXPECT_EQ(SlotOf(&Settings::GetClassId), 1u);
    // 2 and 3: the destructor.
    EXPECT_EQ(SlotOf(&Settings::Clone), 4u);
    EXPECT_EQ(SlotOf(&Settings::IsEqualTo), 5u);
    EXPECT_EQ(SlotOf(&Settings::IsEmpty), 6u);
    EXPECT_EQ(SlotOf(&Settings::Deserialize), 7u);
}

TEST(VirtualOrder, OfEffectSettings)
{
    // The order of the operations is 7 to 18; the destructor before them takes two places.
    EXPECT_EQ(SlotOf(&IEffectSettings::Clone), 8u);
    EXPECT_EQ(SlotOf(&IEffectSettings::GetImplName), 9u);
    EXPECT_EQ(SlotOf(&IEffectSettings::GetEffectSettings), 10u);
    EXPECT_EQ(SlotOf(&IEffectSettings::GetEffectSettingsRef), 11u);
    EXPECT_EQ(SlotOf(&IEffectSettings::GetHelperSettings), 12u);
    EXPECT_EQ(SlotOf(&IEffectSettings::GetInputType), 13u);
    EXPECT_EQ(SlotOf(&IEffectSettings::HelperSetting), 14u);
    EXPECT_EQ(SlotOf(&IEffectSettings::IsAdditive), 15u);
    EXPECT_EQ(SlotOf(&IEffectSettings::IsEmpty), 16u);
    EXPECT_EQ(SlotOf(&IEffectSettings::SetEffectSettings), 17u);
    EXPECT_EQ(SlotOf(&IEffectSettings::Add), 18u);
    EXPECT_EQ(SlotOf(&IEffectSettings::operator==), 19u);
}

TEST(VirtualOrder, OfTheTypedForms)
{
    using Impl = PhotoCore::EffectSettingsImpl<Proc::SettingsEffectAcid, AcidSettings>;
    EXPECT_EQ(SlotOf(static_cast<bool (Impl::*)(const AcidSettings&) const>(&Impl::operator==)), 20u);
    EXPECT_EQ(SlotOf(static_cast<void (Impl::*)(const AcidSettings&)>(&Impl::Add)), 21u);
}

// Not to be tidied.
static_assert(std::is_same_v<decltype(&IEffectSettings::GetInputType), IEffectSettings::InputType (IEffectSettings::*)()>);
static_assert(std::is_same_v<decltype(&IEffectSettings::HelperSetting), PhotoCore::HelperSettings& (IEffectSettings::*)()>);
static_assert(!std::is_polymorphic_v<PropertyTree>);

} // namespace
