#include "Exception/Exception.h"
#include "Proc/EffectSettings/BlendSettings.h"
#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/EffectSettings/ResizeSettings.h"
#include "Proc/EffectSettings/VibranceSettings.h"
#include "Proc/Reflection/Folds.h"
#include "Proc/Settings/SettingsRecord.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

// The classes that a program finds by their ids: the library's own and those of callers.
namespace
{

using namespace Ombrel;
using namespace Ombrel::PhotoCore;
using Support::Map;

struct Grain : Proc::SettingsRecord<Grain>
{
    static constexpr const char* CLASS_NAME = "EFFECT_GRAIN";
    static const std::string CLASS_ID;

    static const Proc::RecordSchema& Schema() noexcept
    {
        return Proc::Describe<Grain, Proc::FieldList<Proc::FieldDescriptor<&Grain::m_size>>>();
    }

    bool operator==(const Grain& other) const { return m_size == other.m_size; }

    std::int32_t m_size = 1;
};

const std::string Grain::CLASS_ID{CLASS_NAME};

class GrainSettings : public EffectSettingsOneInputReflection<Grain, GrainSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;
};

bool IsListed(const std::string& id)
{
    const std::vector<std::string> ids = RegisteredClassIds();
    EXPECT_TRUE(std::ranges::is_sorted(ids));
    return std::ranges::binary_search(ids, id);
}

std::string RefusalOf(const EffectClass& effectClass)
{
    try
    {
        RegisterEffectClass(effectClass);
    }
    catch (const Exception& failure)
    {
        return DescribeFailure(failure);
    }
    return "none";
}

EffectClass GrainAs(const char* id)
{
    return {"GrainSettings",      id, &GrainSettings::CreateBase, &GrainSettings::GetSchema, GrainSettings::GetStoredSource(),
            Registration::Factory};
}

TEST(EffectClass, TheLibrarysOwnAreFound)
{
    for (const EffectClass& effectClass : EffectClasses())
    {
        if (effectClass.registration != Registration::None)
        {
            EXPECT_EQ(FindEffectClass(effectClass.classId), &effectClass) << effectClass.classId;
            EXPECT_TRUE(IsRegistered(effectClass.classId)) << effectClass.classId;
            EXPECT_TRUE(IsListed(effectClass.classId)) << effectClass.classId;
        }
    }
    EXPECT_EQ(FindEffectClass("EFFECT_VIBRANCE")->getSchema(), &Proc::SettingsEffectVibrance::Schema());
    ResizeSettings resize; // stores itself
    EXPECT_EQ(FindEffectClass(resize.GetClassId())->getSchema(), &ResizeSettings::Schema());
    EXPECT_EQ(FindEffectClass(resize.GetClassId())->getStored(resize), &resize);
}

TEST(EffectClass, OneOfTheLibraryWithoutAFactoryIsFound)
{
    const EffectClass* blend = FindEffectClass(BlendSettings().GetClassId());
    ASSERT_TRUE(blend);
    EXPECT_EQ(blend->className, "BlendSettings");
    EXPECT_EQ(blend->registration, Registration::None);
    EXPECT_FALSE(IsRegistered(blend->classId));
    EXPECT_FALSE(IsListed(blend->classId));
}

TEST(EffectClass, NoOtherIsFound)
{
    for (const char* id : {"", "EFFECT_NOTHING", "EFFECT_VIBRANCE ", "effect_vibrance"})
    {
        EXPECT_FALSE(FindEffectClass(id)) << id;
        EXPECT_FALSE(IsRegistered(id)) << id;
        EXPECT_FALSE(IsListed(id)) << id;
    }
}

TEST(EffectClass, ACallersIsFoundAndCreatedByItsId)
{
    EXPECT_FALSE(FindEffectClass("EFFECT_GRAIN"));
    RegisterEffectClass<GrainSettings>();
    const EffectClass* found = FindEffectClass("EFFECT_GRAIN");
    ASSERT_TRUE(found);
    EXPECT_EQ(found->className, "GrainSettings");
    EXPECT_STREQ(found->classId, "EFFECT_GRAIN");
    EXPECT_EQ(found->registration, Registration::Factory);
    EXPECT_EQ(found->getSchema()->fields[0].key, "size");
    EXPECT_TRUE(IsRegistered("EFFECT_GRAIN"));
    EXPECT_TRUE(IsListed("EFFECT_GRAIN"));
    std::shared_ptr<IEffectSettings> effect;
    EffectSettings::DeserializePtr(Map({{"name", "EFFECT_GRAIN"}, {"size", 4}}), effect);
    EXPECT_EQ(dynamic_cast<const GrainSettings&>(*effect).GetTypedSettings().m_size, 4);
    EXPECT_EQ(FindEffectClass(effect->GetClassId()), found);
    EXPECT_EQ(found->getStored(*effect), &dynamic_cast<GrainSettings&>(*effect).GetTypedSettings());
}

TEST(EffectClass, ItsTextsAreCopied)
{
    {
        const std::string name = "OtherGrainSettings of a library that goes";
        const std::string id = "EFFECT_GRAIN_WITH_A_LONG_NAME";
        RegisterEffectClass({name, id.c_str(), &GrainSettings::CreateBase, &GrainSettings::GetSchema,
                             GrainSettings::GetStoredSource(), Registration::None});
    }
    const EffectClass* found = FindEffectClass("EFFECT_GRAIN_WITH_A_LONG_NAME");
    EXPECT_EQ(found->className, "OtherGrainSettings of a library that goes");
    EXPECT_STREQ(found->classId, "EFFECT_GRAIN_WITH_A_LONG_NAME");
    EXPECT_EQ(found->registration, Registration::Factory); // by this call
}

TEST(EffectClass, AnIdThatIsKnownIsRefusedAndStays)
{
    IEffectSettings::RegisterFactory("EFFECT_GRAIN_FACTORY", &VibranceSettings::CreateBase);
    RegisterEffectClass(GrainAs("EFFECT_GRAIN_CLASS"));
    EXPECT_EQ(RefusalOf(GrainAs("EFFECT_ACID")), "Duplicate class id (EFFECT_ACID)!");
    EXPECT_EQ(RefusalOf(GrainAs("EFFECT_GRAIN_FACTORY")), "Duplicate class id (EFFECT_GRAIN_FACTORY)!");
    EXPECT_EQ(RefusalOf(GrainAs("EFFECT_GRAIN_CLASS")), "Duplicate class id (EFFECT_GRAIN_CLASS)!");
    EXPECT_THROW(IEffectSettings::RegisterFactory("EFFECT_GRAIN_CLASS", &VibranceSettings::CreateBase), Exception);
    EXPECT_EQ(FindEffectClass("EFFECT_ACID")->className, "AcidSettings");
    EXPECT_EQ(IEffectSettings::CreateEffectSettings("EFFECT_GRAIN_FACTORY")->GetClassId(), "EFFECT_VIBRANCE");
    EXPECT_EQ(IEffectSettings::CreateEffectSettings("EFFECT_GRAIN_CLASS")->GetClassId(), "EFFECT_GRAIN");
}

TEST(EffectClass, AFactoryAloneTellsNothingOfItsClass)
{
    IEffectSettings::RegisterFactory("EFFECT_WITHOUT_A_CLASS", &VibranceSettings::CreateBase);
    EXPECT_FALSE(FindEffectClass("EFFECT_WITHOUT_A_CLASS"));
    EXPECT_TRUE(IsRegistered("EFFECT_WITHOUT_A_CLASS"));
    EXPECT_TRUE(IsListed("EFFECT_WITHOUT_A_CLASS"));
}

TEST(EffectClass, AClassOfTheLibraryWithoutAFactoryMayBeReplaced)
{
    RegisterEffectClass(GrainAs("EFFECT_GUIDED_FILTER"));
    EXPECT_EQ(FindEffectClass("EFFECT_GUIDED_FILTER")->className, "GrainSettings");
    EXPECT_TRUE(IsRegistered("EFFECT_GUIDED_FILTER"));
    EXPECT_EQ(IEffectSettings::CreateEffectSettings("EFFECT_GUIDED_FILTER")->GetClassId(), "EFFECT_GRAIN");
}

} // namespace
