#include "Exception/Exception.h"
#include "Proc/EffectSettings/AcidSettings.h"
#include "Proc/EffectSettings/EffectSettingsExport.h"

#include <gtest/gtest.h>

#include <functional>

namespace
{

using namespace Ombrel::PhotoCore;
using Ombrel::Exception;

struct Failure
{
    std::string description;
    std::string file;
    std::string function;
    int line = 0;
    bool hasCallStack = false;
};

template <class Call> Failure FailureOf(Call call)
{
    try
    {
        call();
    }
    catch (const boost::wrapexcept<Exception>& failure)
    {
        return {*boost::get_error_info<Ombrel::ErrorDescription>(failure), *boost::get_error_info<boost::throw_file>(failure),
                *boost::get_error_info<boost::throw_function>(failure), *boost::get_error_info<boost::throw_line>(failure),
                boost::get_error_info<Ombrel::ErrorCallStack>(failure) != nullptr};
    }
    return {};
}

TEST(Registry, RefusesAnUnknownId)
{
    const Failure failure = FailureOf([] { IEffectSettings::CreateEffectSettings("EFFECT_NOTHING"); });
    EXPECT_EQ(failure.description, "Unknown Effect Setting type (EFFECT_NOTHING)!");
    EXPECT_EQ(failure.file, "Proc/EffectSettings/EffectSettingsExport");
    EXPECT_EQ(failure.function, "CreateEffectSettings");
    EXPECT_EQ(failure.line, 208);
    EXPECT_TRUE(failure.hasCallStack);
}

TEST(Registry, NamesAnyIdInFull)
{
    EXPECT_EQ(FailureOf([] { IEffectSettings::CreateEffectSettings(""); }).description, "Unknown Effect Setting type ()!");
    EXPECT_EQ(FailureOf([] { IEffectSettings::CreateEffectSettings(std::string("a\0b", 3)); }).description,
              std::string("Unknown Effect Setting type (a\0b)!", 34));
    EXPECT_EQ(FailureOf([] { IEffectSettings::CreateEffectSettings("EFFECT_ACID "); }).description,
              "Unknown Effect Setting type (EFFECT_ACID )!");
}

TEST(Registry, RefusesAKnownIdAndKeepsItsFactory)
{
    const Failure failure = FailureOf(
        []
        {
            IEffectSettings::RegisterFactory("EFFECT_ACID", []() -> std::shared_ptr<IEffectSettings> { return nullptr; });
        });
    EXPECT_EQ(failure.description, "Duplicate class id (EFFECT_ACID)!");
    EXPECT_EQ(failure.file, "Proc/EffectSettings/EffectSettingsExport");
    EXPECT_EQ(failure.function, "RegisterFactory");
    EXPECT_EQ(failure.line, 217);
    EXPECT_TRUE(failure.hasCallStack);
    EXPECT_TRUE(IEffectSettings::CreateEffectSettings("EFFECT_ACID"));
}

TEST(Registry, KnowsTheColumnsOfItsThrowSites)
{
    EXPECT_EQ(CREATE_EFFECT_SETTINGS_LOCATION.column(), 252u);
    EXPECT_EQ(REGISTER_FACTORY_LOCATION.column(), 243u);
}

TEST(Registry, CallsWhatWasRegistered)
{
    int calls = 0;
    std::shared_ptr<IEffectSettings> made;
    IEffectSettings::RegisterFactory("EFFECT_REGISTERED",
                                     [&]
                                     {
                                         ++calls;
                                         return made = AcidSettings::CreateBase();
                                     });
    EXPECT_EQ(calls, 0);
    EXPECT_EQ(IEffectSettings::CreateEffectSettings("EFFECT_REGISTERED"), made);
    EXPECT_EQ(calls, 1);
    EXPECT_THROW(IEffectSettings::RegisterFactory("EFFECT_REGISTERED", &AcidSettings::CreateBase), Exception);
}

TEST(Registry, FindsEachOfManyWhateverTheirOrder)
{
    for (const char* id : {"EFFECT_M", "EFFECT_Z", "EFFECT_A", "EFFECT_MM", "A", "effect_m"})
    {
        IEffectSettings::RegisterFactory(id,
                                         [id] { return id == std::string("EFFECT_Z") ? AcidSettings::CreateBase() : nullptr; });
    }
    EXPECT_EQ(IEffectSettings::CreateEffectSettings("EFFECT_Z")->GetClassId(), "EFFECT_ACID");
    for (const char* id : {"EFFECT_A", "EFFECT_M", "EFFECT_MM", "A", "effect_m"})
    {
        EXPECT_FALSE(IEffectSettings::CreateEffectSettings(id)) << id;
        EXPECT_THROW(IEffectSettings::RegisterFactory(id, nullptr), Exception) << id;
    }
    EXPECT_THROW(IEffectSettings::CreateEffectSettings("EFFECT_MMM"), Exception);
    EXPECT_THROW(IEffectSettings::CreateEffectSettings("EFFECT_"), Exception);
}

TEST(Registry, AClassWithoutAFactoryMayBeGivenOne)
{
    IEffectSettings::RegisterFactory("EFFECT_MATTING", &AcidSettings::CreateBase);
    EXPECT_EQ(IEffectSettings::CreateEffectSettings("EFFECT_MATTING")->GetClassId(), "EFFECT_ACID");
}

TEST(Registry, AnEmptyFunctionFailsWhenCalled)
{
    IEffectSettings::RegisterFactory("EFFECT_EMPTY_FUNCTION", nullptr);
    EXPECT_THROW(IEffectSettings::CreateEffectSettings("EFFECT_EMPTY_FUNCTION"), std::bad_function_call);
}

TEST(Registry, AFactoryMayReturnNothing)
{
    IEffectSettings::RegisterFactory("EFFECT_NULL", []() -> std::shared_ptr<IEffectSettings> { return nullptr; });
    EXPECT_FALSE(IEffectSettings::CreateEffectSettings("EFFECT_NULL"));
}

TEST(Registry, MakesANewObjectEachTime)
{
    EXPECT_NE(IEffectSettings::CreateEffectSettings("EFFECT_ACID"), IEffectSettings::CreateEffectSettings("EFFECT_ACID"));
}

} // namespace
