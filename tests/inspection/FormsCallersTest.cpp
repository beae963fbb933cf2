#include "Inspection/Forms.h"
#include "Proc/EffectSettings/EffectPointerCodec.h"
#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/EffectSettings/VibranceSettings.h"
#include "Proc/Reflection/Folds.h"
#include "Proc/Settings/RgbaColorCodec.h"
#include "Proc/Settings/SettingsRecord.h"
#include "PropertyTreeJson/PropertyTreeJson.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Classes of a caller's own: with defaults that no class of the library has, and with code that fails.
namespace FormsCallers
{

using namespace Ombrel;
using namespace Ombrel::Inspection;
using namespace Ombrel::PhotoCore;

std::string ThinText(std::string_view json)
{
    return WriteJson(Thin(ReadJson(json)));
}

std::string FrozenText(std::string_view json)
{
    PropertyTree frozen = Freeze(ReadJson(json));
    frozen.getMap().erase("helperSettings");
    return WriteJson(frozen);
}

enum class Unnamed : std::int32_t
{
    Zero = 0,
    Nameless = 7,
};

// Stored as a text of as many characters, at most three.
struct Dots
{
    int count = 0;
    bool operator==(const Dots&) const = default;
};

} // namespace FormsCallers

namespace Ombrel::Proc
{

template <> struct EnumNames<FormsCallers::Unnamed>
{
    static constexpr EnumNameRow ROWS[] = {{"Zero", FormsCallers::Unnamed::Zero}};
    static constexpr EnumNameTable TABLE{ROWS};
};

template <> struct Codec<FormsCallers::Dots>
{
    static void Write(PropertyTree& child, const FormsCallers::Dots& value, const WriteFlags*)
    {
        child = std::string(static_cast<std::size_t>(value.count), '.');
    }
    static void Read(const PropertyTree& child, FormsCallers::Dots& value, const ReadFlags*)
    {
        value.count = std::min(3, static_cast<int>(child.getScalar().toString().size()));
    }
};

} // namespace Ombrel::Proc

namespace FormsCallers
{

struct Rich : Proc::ComparedRecord<Rich>
{
    static constexpr const char* CLASS_NAME = "EFFECT_RICH";
    static const std::string CLASS_ID;

    static const Proc::RecordSchema& Schema() noexcept
    {
        using namespace Proc;
        return Describe<Rich, FieldList<FieldDescriptor<&Rich::m_set>, FieldDescriptor<&Rich::m_colors>,
                                        FieldDescriptor<&Rich::m_list>, FieldDescriptor<&Rich::m_pair>,
                                        FieldDescriptor<&Rich::m_unnamed>, FieldDescriptor<&Rich::m_effects>,
                                        FieldDescriptor<&Rich::m_dots>, FieldDescriptor<&Rich::m_manyDots>>>();
    }

    std::set<std::int32_t> m_set{1, 2};
    std::map<std::uint8_t, Proc::RgbaColor> m_colors{{1, {}}, {2, {}}};
    std::vector<std::pair<std::int32_t, double>> m_list{{1, 0.5}, {0, 0.0}};
    std::pair<bool, std::string> m_pair{true, "x"};
    Unnamed m_unnamed = Unnamed::Nameless;
    std::vector<std::shared_ptr<IEffectSettings>> m_effects{std::make_shared<VibranceSettings>()};
    Dots m_dots{2};
    Dots m_manyDots{5};
};

const std::string Rich::CLASS_ID{CLASS_NAME};

class RichSettings : public EffectSettingsOneInputReflection<Rich, RichSettings>
{
public:
    RichSettings()
    {
        m_implName = "gpu";
        m_helperSettings.SetMaxWidth(5);
    }
    using EffectSettingsReflection::EffectSettingsReflection;
};

class FormsOfRich : public testing::Test
{
protected:
    static void SetUpTestSuite() { RegisterEffectClass<RichSettings>(); }
};

TEST_F(FormsOfRich, FrozenHasWhatHasAForm)
{
    EXPECT_EQ(FrozenText(R"({"name": "EFFECT_RICH"})"),
              R"({"colors":[{"key":1,"value":"000000ff"},{"key":2,"value":"000000ff"}],"dots":"..","implName":"gpu",)"
              R"("list":[{"first":1,"second":0.5},{"first":0,"second":0.0}],"name":"EFFECT_RICH",)"
              R"("pair":{"first":true,"second":"x"},"set":[1,2]})");
    EXPECT_EQ(WriteJson(Freeze(ReadJson(R"({"name": "EFFECT_RICH"})"))["helperSettings"]),
              R"({"applyMode":[],"maxHeight":4294967295,"maxWidth":5,"undoSet":false})");
    EXPECT_EQ(ThinText(R"({"name": "EFFECT_RICH"})"), R"({"name":"EFFECT_RICH"})");
}

TEST_F(FormsOfRich, TheOrderOfSetsAndColourMapsMakesNoDifference)
{
    const char* const other = R"({"name": "EFFECT_RICH", "set": [2.0, 1],
                                  "colors": [{"key": 2, "value": "000000ff"}, {"value": "000000ff", "key": 1.0}]})";
    EXPECT_EQ(ThinText(other), R"({"name":"EFFECT_RICH"})");
    EXPECT_EQ(Freeze(ReadJson(other)), Freeze(ReadJson(R"({"name": "EFFECT_RICH"})")));
    EXPECT_EQ(ThinText(R"({"name": "EFFECT_RICH", "set": [2, 1, 1]})"), R"({"name":"EFFECT_RICH","set":[2,1,1]})");
    EXPECT_EQ(ThinText(R"({"name": "EFFECT_RICH", "set": []})"), R"({"name":"EFFECT_RICH","set":[]})");
    EXPECT_EQ(ThinText(R"({"name": "EFFECT_RICH", "set": [2, [[1]]]})"), R"({"name":"EFFECT_RICH","set":[2,[[1]]]})");
}

TEST_F(FormsOfRich, AListOfRecordsIsTheDefaultWithKeysLeftOut)
{
    EXPECT_EQ(ThinText(R"({"name": "EFFECT_RICH", "list": [{"first": 1, "second": 0.5}, {}]})"), R"({"name":"EFFECT_RICH"})");
    EXPECT_EQ(ThinText(R"({"name": "EFFECT_RICH", "list": [{"first": 1, "second": 0.5}, {"first": 0, "third": 0}]})"),
              R"({"list":[{"first":1,"second":0.5},{"third":0}],"name":"EFFECT_RICH"})");
    EXPECT_EQ(ThinText(R"({"name": "EFFECT_RICH", "list": [{"first": 0, "second": 0.5}, {"first": 0}]})"),
              R"({"list":[{"second":0.5},{}],"name":"EFFECT_RICH"})");
    EXPECT_EQ(ThinText(R"({"name": "EFFECT_RICH", "pair": {"first": true, "second": ""}})"),
              R"({"name":"EFFECT_RICH","pair":{"first":true}})");
}

// What is read otherwise than it was written, or shared, is neither taken out nor put in.
TEST_F(FormsOfRich, WhatHasNoFormStays)
{
    const char* const given = R"({"dots":"...","effects":[{"name":"EFFECT_VIBRANCE"}],"manyDots":".....","name":"EFFECT_RICH",)"
                              R"("unnamed":""})";
    EXPECT_EQ(ThinText(given), given);
    EXPECT_EQ(ThinText(R"({"dots":"..","name":"EFFECT_RICH"})"), R"({"name":"EFFECT_RICH"})");
    EXPECT_EQ(ThinText(R"({"effects": [{"name": "EFFECT_VIBRANCE", "strength": 0}], "name": "EFFECT_RICH"})"),
              R"({"effects":[{"name":"EFFECT_VIBRANCE"}],"name":"EFFECT_RICH"})");
}

TEST_F(FormsOfRich, WhatTheClassSetsIsTheDefault)
{
    EXPECT_EQ(ThinText(R"({"name": "EFFECT_RICH", "implName": "gpu", "helperSettings": {"maxWidth": 5}})"),
              R"({"name":"EFFECT_RICH"})");
    EXPECT_EQ(ThinText(R"({"name": "EFFECT_RICH", "implName": "default", "helperSettings": {"undoSet": false}})"),
              R"({"helperSettings":{},"implName":"default","name":"EFFECT_RICH"})");
}

// Takes no negative number, also in a record that it holds, and refuses its own default of `m_fussy`.
struct Picky : Proc::ComparedRecord<Picky>
{
    using Pair = std::pair<std::int32_t, std::int32_t>;

    static constexpr const char* CLASS_NAME = "EFFECT_PICKY";
    static const std::string CLASS_ID;

    static const Proc::RecordSchema& Schema() noexcept
    {
        using namespace Proc;
        return Describe<Picky, FieldList<AccessorDescriptor<"pair", &Picky::SetPair, &Picky::GetPair>,
                                         AccessorDescriptor<"fussy", &Picky::SetFussy, &Picky::GetFussy>>>();
    }

    void SetPair(const Pair& value) { m_pair = value.first < 0 ? throw std::domain_error("negative") : value; }
    const Pair& GetPair() const { return m_pair; }
    void SetFussy(std::int32_t value) { m_fussy = value == 4 ? throw value : value; }
    std::int32_t GetFussy() const { return m_fussy; }

private:
    Pair m_pair;
    std::int32_t m_fussy = 4;
};

const std::string Picky::CLASS_ID{CLASS_NAME};

class PickySettings : public EffectSettingsOneInputReflection<Picky, PickySettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;
};

TEST(FormsOfCallers, WhatASetterRefusesStays)
{
    RegisterEffectClass<PickySettings>();
    EXPECT_EQ(ThinText(R"({"name": "EFFECT_PICKY", "pair": {"first": -1, "second": 0}, "fussy": 4})"),
              R"({"fussy":4,"name":"EFFECT_PICKY","pair":{"first":-1,"second":0}})");
    EXPECT_EQ(FrozenText(R"({"name": "EFFECT_PICKY", "pair": {"first": -1}})"),
              R"({"implName":"default","name":"EFFECT_PICKY","pair":{"first":-1}})");
    EXPECT_EQ(ThinText(R"({"name": "EFFECT_PICKY", "pair": {"first": 1, "second": 0}})"),
              R"({"name":"EFFECT_PICKY","pair":{"first":1}})");
    EXPECT_EQ(FrozenText(R"({"name": "EFFECT_PICKY", "fussy": 5})"),
              R"({"fussy":5,"implName":"default","name":"EFFECT_PICKY","pair":{"first":0,"second":0}})");
    const char* const refused = R"([{"name":"EFFECT_PICKY","pair":{"first":-1,"second":0}}])";
    EXPECT_EQ(WriteJson(Normalise(ReadJson(refused))), refused);
}

// Cannot be written, not even by default.
struct Silent : Proc::ComparedRecord<Silent>
{
    static constexpr const char* CLASS_NAME = "EFFECT_SILENT";
    static const std::string CLASS_ID;

    static const Proc::RecordSchema& Schema() noexcept
    {
        using namespace Proc;
        return Describe<Silent, FieldList<FieldDescriptor<&Silent::m_plain>,
                                          AccessorDescriptor<"silent", &Silent::SetSilent, &Silent::GetSilent>>>();
    }

    void SetSilent(std::int32_t value) { m_silent = value; }
    std::int32_t GetSilent() const { throw m_silent; }

    std::int32_t m_plain = 0;

private:
    std::int32_t m_silent = 0;
};

const std::string Silent::CLASS_ID{CLASS_NAME};

class SilentSettings : public EffectSettingsOneInputReflection<Silent, SilentSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;
};

TEST(FormsOfCallers, WithoutKnownDefaultsTheRecordStays)
{
    RegisterEffectClass<SilentSettings>();
    const char* const given = R"({"name":"EFFECT_SILENT","plain":0,"silent":1})";
    EXPECT_EQ(ThinText(given), given);
    EXPECT_EQ(FrozenText(given), R"({"implName":"default","name":"EFFECT_SILENT","plain":0,"silent":1})");
    EXPECT_EQ(WriteJson(Normalise(ReadJson(given))), given);
}

TEST(FormsOfCallers, AClassThatCannotBeMadeStays)
{
    RegisterEffectClass({"PickySettings", "EFFECT_FORMS_NULL", []() -> std::shared_ptr<IEffectSettings> { return nullptr; },
                         &PickySettings::GetSchema, PickySettings::GetStoredSource(), Registration::Factory});
    RegisterEffectClass({"PickySettings", "EFFECT_FORMS_THROWS",
                         []() -> std::shared_ptr<IEffectSettings> { throw std::runtime_error("no licence"); },
                         &PickySettings::GetSchema, PickySettings::GetStoredSource(), Registration::Factory});
    IEffectSettings::RegisterFactory("EFFECT_FORMS_FACTORY", &PickySettings::CreateBase);
    const char* const given = R"([{"implName":"default","name":"EFFECT_FORMS_NULL","pair":{}},)"
                              R"({"implName":"default","name":"EFFECT_FORMS_THROWS","pair":{}},)"
                              R"({"implName":"default","name":"EFFECT_FORMS_FACTORY"}])";
    EXPECT_EQ(WriteJson(Thin(ReadJson(given))), given);
    EXPECT_EQ(WriteJson(Freeze(ReadJson(given))), given);
    EXPECT_EQ(WriteJson(Normalise(ReadJson(R"([{"name": "EFFECT_FORMS_NULL"}, {"name": "EFFECT_FORMS_THROWS"}])"))),
              R"([{"name":"EFFECT_FORMS_NULL"},{"name":"EFFECT_FORMS_THROWS"}])");
}

} // namespace FormsCallers
