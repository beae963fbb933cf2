#include "Inspection/JsonSchema.h"
#include "PropertyTreeJson/PropertyTreeJson.h"

#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Reflection/Folds.h"
#include "Proc/Settings/SettingsRecord.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <memory>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

// What the schemas mean is tested with a validator. Here is what stands in them.
namespace
{

using namespace Ombrel;
using namespace Ombrel::PhotoCore;
using Inspection::JsonSchema;

std::string TextOf(const PropertyTree& tree)
{
    return WriteJson(tree);
}

TEST(JsonSchema, OfOneClassHoldsWhatItNeedsAndNoMore)
{
    EXPECT_EQ(TextOf(*JsonSchema("EFFECT_FISH_EYE")),
              R"({"$defs":{"effect.EFFECT_FISH_EYE":{"properties":{"deviation":{"default":0.0,"type":"number"},)"
              R"("helperSettings":{"$ref":"#/$defs/record.HelperSettings"},"implName":{"default":"default","type":"string"},)"
              R"("intensity":{"default":1.0,"type":"number"},"name":{"const":"EFFECT_FISH_EYE"}},"title":"FishEyeSettings"},)"
              R"("record.HelperSettings":{"properties":{"applyMode":{"default":[],"items":{"enum":["Invalid",)"
              R"("ApplyToMaskOnly","ApplyWithMask","ApplyAndSetMask","ApplyStop","ApplyToAlpha","ApplyAndAddToUndo"]},)"
              R"("type":"array","uniqueItems":true},"maxHeight":{"$ref":"#/$defs/uint32","default":4294967295},)"
              R"("maxWidth":{"$ref":"#/$defs/uint32","default":4294967295},"undoSet":{"default":false,"type":"boolean"}},)"
              R"("title":"HelperSettings","type":"object"},"the-effect":{"$ref":"#/$defs/effect.EFFECT_FISH_EYE",)"
              R"("required":["name"],"type":["object","null"]},"uint32":{"maximum":4294967295,"minimum":0,"title":"uint32",)"
              R"("type":"integer"}},"$schema":"https://json-schema.org/draft/2020-12/schema",)"
              R"("else":{"$ref":"#/$defs/the-effect"},"if":{"type":"array"},"then":{"items":{"$ref":"#/$defs/the-effect"}},)"
              R"("title":"Stored effects of the class EFFECT_FISH_EYE"})");
}

TEST(JsonSchema, OfOneClassThatHoldsEffectsHoldsThemAll)
{
    const PropertyTree definitions = (*JsonSchema("effectSettingsTileStub"))["$defs"];
    EXPECT_TRUE(definitions.contains("effect"));
    EXPECT_TRUE(definitions.contains("effect.EFFECT_ACID"));
    EXPECT_TRUE(definitions.contains("record.Face"));
}

TEST(JsonSchema, OfAnIdThatIsNotRegisteredIsNothing)
{
    EXPECT_FALSE(JsonSchema("EFFECT_NOTHING"));
    EXPECT_FALSE(JsonSchema("EFFECT_BLEND"));
    EXPECT_FALSE(JsonSchema(""));
}

TEST(JsonSchema, OfAllTellsEffectsApartByName)
{
    const PropertyTree schema = JsonSchema();
    const PropertyTree& any = schema["$defs"]["effect"];
    EXPECT_GE(any["allOf"].getList().size(), 94U);
    EXPECT_EQ(any["allOf"].getList().size(), any["properties"]["name"]["enum"].getList().size());
    EXPECT_EQ(TextOf(any["allOf"].getList()[1]),
              R"({"if":{"properties":{"name":{"const":"EFFECT_ADJUSTER"}},"required":["name"]},)"
              R"("then":{"$ref":"#/$defs/effect.EFFECT_ADJUSTER"}})");
}

TEST(JsonSchema, HasTheDefaultsOfBothLevels)
{
    const PropertyTree definitions = (*JsonSchema("EFFECT_ADJUSTER"))["$defs"];
    const PropertyTree& smartBlur = definitions["effect.EFFECT_ADJUSTER"]["properties"]["smartBlur"];
    EXPECT_EQ(TextOf(smartBlur["default"]), R"({"chromaRadius":100,"lumaRadius":100})");
    EXPECT_EQ(TextOf(smartBlur["$ref"]), R"("#/$defs/record.SettingsEffectSmartBlur")");
    EXPECT_EQ(TextOf(definitions["record.SettingsEffectSmartBlur"]["properties"]["lumaRadius"]["default"]), "0");
}

TEST(JsonSchema, ClosesWhatHasKnownKeys)
{
    const PropertyTree definitions = (*JsonSchema("EFFECT_GRADIENT", {.allowUnknownKeys = false}))["$defs"];
    const PropertyTree& gradient = definitions["effect.EFFECT_GRADIENT"];
    EXPECT_EQ(TextOf(gradient["additionalProperties"]), "false");
    EXPECT_EQ(TextOf(gradient["properties"]["gradient"]),
              R"({"default":[],"items":{"additionalProperties":false,"properties":{"key":{"$ref":"#/$defs/uint8"},)"
              R"("value":{"$ref":"#/$defs/colour"}},"required":["key","value"],"type":"object"},"type":"array"})");
    EXPECT_EQ(TextOf(definitions["record.HelperSettings"]["additionalProperties"]), "false");
    EXPECT_EQ(TextOf(definitions["colour"]), R"({"maxLength":8,"pattern":"^[0-9a-f]{8}$","title":"colour","type":"string"})");
}

// A record that holds itself, beside another of the same name, a default that is no finite number and one without a name.
struct Twig
{
    static const Proc::RecordSchema& Schema() noexcept
    {
        using namespace Proc;
        return Proc::Describe<Twig, FieldList<FieldDescriptor<&Twig::m_twigs>>>();
    }

    bool operator==(const Twig& other) const { return m_twigs == other.m_twigs; }

    std::vector<Twig> m_twigs;
};

namespace Other
{
enum class Size : std::int32_t
{
    Small = 1,
    Tiny = 1,
};

struct Twig
{
    static const Proc::RecordSchema& Schema() noexcept;

    bool operator==(const Twig& other) const = default;

    double m_length = std::numeric_limits<double>::infinity();
    Size m_size = Size{0};
};
} // namespace Other

} // namespace

template <> struct Ombrel::Proc::EnumNames<Other::Size>
{
    static constexpr EnumNameRow ROWS[] = {{"Small", Other::Size::Small}, {"Tiny", Other::Size::Tiny}};
    static constexpr EnumNameTable TABLE{ROWS};
};

namespace
{

const Proc::RecordSchema& Other::Twig::Schema() noexcept
{
    using namespace Proc;
    return Proc::Describe<Twig, FieldList<FieldDescriptor<&Twig::m_length>, FieldDescriptor<&Twig::m_size>>>();
}

struct Hedge : Proc::SettingsRecord<Hedge>
{
    static constexpr const char* CLASS_NAME = "my own/hedge~1";
    static const std::string CLASS_ID;

    static const Proc::RecordSchema& Schema() noexcept
    {
        using namespace Proc;
        return Proc::Describe<Hedge, FieldList<FieldDescriptor<&Hedge::m_first>, FieldDescriptor<&Hedge::m_second>,
                                               AccessorDescriptor<"broken", &Hedge::SetBroken, &Hedge::GetBroken>>>();
    }

    bool operator==(const Hedge& other) const { return m_first == other.m_first; }

    void SetBroken(std::int32_t) {}
    std::int32_t GetBroken() const { throw std::runtime_error("no value"); }

    Twig m_first;
    Other::Twig m_second;
};

const std::string Hedge::CLASS_ID{CLASS_NAME};

class HedgeSettings : public EffectSettingsOneInputReflection<Hedge, HedgeSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;
};

class UnlistedSettings : public EffectSettingsOneInput<Hedge, UnlistedSettings>
{
public:
    using EffectSettingsInput::EffectSettingsInput;
};

TEST(JsonSchema, DescribesTheClassesOfCallers)
{
    RegisterEffectClass<HedgeSettings>();
    const PropertyTree schema = *JsonSchema("my own/hedge~1");
    const PropertyTree& definitions = schema["$defs"];
    EXPECT_EQ(TextOf(definitions["the-effect"]["$ref"]), R"("#/$defs/effect.my%20own~1hedge~01")");
    const PropertyTree& properties = definitions["effect.my own/hedge~1"]["properties"];
    EXPECT_EQ(TextOf(properties["first"]), R"({"$ref":"#/$defs/record.Twig","default":{}})");
    EXPECT_EQ(TextOf(properties["second"]), R"({"$ref":"#/$defs/record.Twig2","default":{}})");
    EXPECT_EQ(TextOf(properties["broken"]), R"({"$ref":"#/$defs/int32"})");
    EXPECT_EQ(TextOf(definitions["record.Twig"]["properties"]),
              R"({"twigs":{"default":[],"items":{"$ref":"#/$defs/record.Twig"},"type":"array"}})");
    EXPECT_EQ(TextOf(definitions["record.Twig2"]["properties"]), R"({"length":{"type":"number"},"size":{"enum":["Small"]}})");
}

// Of a class without a schema a check looks at nothing, so anything passes.
TEST(JsonSchema, LeavesOpenWhatIsNotKnown)
{
    IEffectSettings::RegisterFactory("EFFECT_SCHEMA_FACTORY", &HedgeSettings::CreateBase);
    RegisterEffectClass({"UnlistedSettings", "EFFECT_SCHEMA_UNLISTED", &UnlistedSettings::CreateBase,
                         &UnlistedSettings::GetSchema, UnlistedSettings::GetStoredSource(), Registration::Factory});
    const PropertyTree schema = JsonSchema({.allowUnknownKeys = false});
    EXPECT_EQ(TextOf(schema["$defs"]["effect.EFFECT_SCHEMA_FACTORY"]),
              R"({"properties":{"name":{"const":"EFFECT_SCHEMA_FACTORY"}},"title":"EFFECT_SCHEMA_FACTORY"})");
    EXPECT_EQ(TextOf(schema["$defs"]["effect.EFFECT_SCHEMA_UNLISTED"]),
              R"({"properties":{"name":{"const":"EFFECT_SCHEMA_UNLISTED"}},"title":"UnlistedSettings"})");
    EXPECT_EQ(TextOf(schema["$defs"]["effect.effectSettingsSimple"]["additionalProperties"]), "false");
}

TEST(JsonSchema, TakesFloatsAsTexts)
{
    const PropertyTree definitions = (*JsonSchema("EFFECT_FISH_EYE", {.nonFiniteAsText = true}))["$defs"];
    EXPECT_EQ(TextOf(definitions["effect.EFFECT_FISH_EYE"]["properties"]["intensity"]),
              R"({"$ref":"#/$defs/float","default":1.0})");
    EXPECT_EQ(TextOf(definitions["float"]),
              R"({"anyOf":[{"type":"number"},{"enum":["NaN","Infinity","-Infinity"]}],"title":"float"})");
    EXPECT_EQ(TextOf(definitions["text"]), R"({"not":{"enum":["NaN","Infinity","-Infinity"]},"title":"text","type":"string"})");
}

} // namespace
