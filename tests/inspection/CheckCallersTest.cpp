#include "Findings.h"

#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Reflection/Folds.h"
#include "Proc/Settings/SettingsRecord.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>

// Classes of a caller's own, whose code may fail.
namespace
{

using namespace Ombrel;
using namespace Ombrel::PhotoCore;
using Support::CheckedLines;

struct Odd : Proc::SettingsRecord<Odd>
{
    static constexpr const char* CLASS_NAME = "EFFECT_ODD";
    static const std::string CLASS_ID;

    static const Proc::RecordSchema& Schema() noexcept
    {
        using namespace Proc;
        return Describe<Odd, FieldList<AccessorDescriptor<"first", &Odd::SetFirst, &Odd::GetFirst>,
                                       AccessorDescriptor<"second", &Odd::SetSecond, &Odd::GetSecond>>>();
    }

    void SetFirst(std::int32_t value)
    {
        if (value % 2 == 0 && value != 0)
        {
            throw std::domain_error("even");
        }
        m_first = value;
    }
    std::int32_t GetFirst() const { return m_first; }

    void SetSecond(std::int32_t value)
    {
        if (value < 0)
        {
            throw value;
        }
        m_second = value;
    }
    std::int32_t GetSecond() const { return m_second == 7 ? throw std::runtime_error("seven") : m_second; }

    bool operator==(const Odd& other) const { return m_first == other.m_first && m_second == other.m_second; }

private:
    std::int32_t m_first = 0;
    std::int32_t m_second = 0;
};

const std::string Odd::CLASS_ID{CLASS_NAME};

class OddSettings : public EffectSettingsOneInputReflection<Odd, OddSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;
};

class UnlistedSettings : public EffectSettingsOneInput<Odd, UnlistedSettings>
{
public:
    using EffectSettingsInput::EffectSettingsInput;
};

EffectClass ClassAs(const char* id, std::shared_ptr<IEffectSettings> (*create)())
{
    return {"OddSettings", id, create, &OddSettings::GetSchema, OddSettings::GetStoredSource(), Registration::Factory};
}

TEST(CheckOfCallers, ASetterThatRefusesIsAnError)
{
    RegisterEffectClass<OddSettings>();
    EXPECT_EQ(CheckedLines(R"({"name": "EFFECT_ODD", "first": 3, "second": 1})"), "");
    EXPECT_EQ(CheckedLines(R"({"name": "EFFECT_ODD", "first": 2, "second": 1})"), "error refused at first\n");
    EXPECT_EQ(CheckedLines(R"({"name": "EFFECT_ODD", "first": 2, "second": -1, "third": 1})"),
              "error refused at first\nerror refused at second\nwarning unknown-key at third -> taken out\n");
    EXPECT_EQ(Inspection::Check(ReadJson(R"({"name": "EFFECT_ODD", "first": 2})"))[0].message, "the class refuses it: even");
}

TEST(CheckOfCallers, AGetterThatRefusesIsAWarning)
{
    RegisterEffectClass(ClassAs("EFFECT_ODD_SEVEN", &OddSettings::CreateBase));
    EXPECT_EQ(CheckedLines(R"({"name": "EFFECT_ODD_SEVEN", "second": 7})"), "warning changes-on-write at \n");
}

TEST(CheckOfCallers, AFactoryThatMakesNothingIsAnError)
{
    RegisterEffectClass(ClassAs("EFFECT_ODD_NULL", []() -> std::shared_ptr<IEffectSettings> { return nullptr; }));
    RegisterEffectClass(
        ClassAs("EFFECT_ODD_THROWS", []() -> std::shared_ptr<IEffectSettings> { throw std::runtime_error("no licence"); }));
    EXPECT_EQ(CheckedLines(R"([{"name": "EFFECT_ODD_NULL"}, {"name": "EFFECT_ODD_THROWS", "first": 2}])"),
              "error refused at 0\nerror refused at 1\n");
}

TEST(CheckOfCallers, WithoutASchemaNothingIsLookedAt)
{
    IEffectSettings::RegisterFactory("EFFECT_ODD_FACTORY", &OddSettings::CreateBase);
    RegisterEffectClass({"UnlistedSettings", "EFFECT_ODD_UNLISTED", &UnlistedSettings::CreateBase, &UnlistedSettings::GetSchema,
                         UnlistedSettings::GetStoredSource(), Registration::Factory});
    EXPECT_EQ(CheckedLines(R"([{"name": "EFFECT_ODD_FACTORY", "x": 1}, {"name": "EFFECT_ODD_UNLISTED", "implName": 3}])"),
              "note no-schema at 0\nnote no-schema at 1\n");
}

} // namespace
