#include "Exception/Exception.h"
#include "catalogue/CatalogueFixture.h"

#include <stdexcept>
#include <string>
#include <vector>

// What stands where the class id of an effect should: whatever it is, the failure says so in full, and the effect that was to
// be replaced stays.
namespace Catalogue
{
namespace
{

using Support::List;

std::string Unknown(const std::string& name)
{
    return "Unknown Effect Setting type (" + name + ")!";
}

// The kind of the failure and its text.
template <class Call> std::string FailureOf(Call call)
{
    try
    {
        call();
    }
    catch (const boost::wrapexcept<Ombrel::Exception>& failure)
    {
        EXPECT_EQ(*boost::get_error_info<boost::throw_file>(failure), std::string("Proc/EffectSettings/EffectSettingsExport"));
        EXPECT_EQ(*boost::get_error_info<boost::throw_function>(failure), std::string("CreateEffectSettings"));
        EXPECT_EQ(*boost::get_error_info<boost::throw_line>(failure), 208);
        EXPECT_TRUE(boost::get_error_info<Ombrel::ErrorCallStack>(failure));
        return "Exception: " + *boost::get_error_info<Ombrel::ErrorDescription>(failure);
    }
    catch (const std::out_of_range& failure)
    {
        return std::string("out_of_range: ") + failure.what();
    }
    catch (const std::invalid_argument& failure)
    {
        return std::string("invalid_argument: ") + failure.what();
    }
    return "nothing was refused";
}

struct Case
{
    PropertyTree tree; // of an effect
    std::string failure;
};

PropertyTree Named(PropertyTree name)
{
    PropertyTree tree = Map({{"radius", 3}});
    tree["name"] = std::move(name);
    return tree;
}

Case Refused(const std::string& name)
{
    return {Named(name), "Exception: " + Unknown(name)};
}

std::vector<Case> Cases()
{
    constexpr std::size_t length = 1024 * 1024;
    const std::string known = "EFFECT_ACID";
    return {
        {Map({}), "out_of_range: invalid map<K, T> key"},
        {Map({{"radius", 3}}), "out_of_range: invalid map<K, T> key"},
        {Map({{"Name", known}, {std::string_view("name\0", 5), known}}), "out_of_range: invalid map<K, T> key"},
        {Named(PropertyTree()), "invalid_argument: tree: expected a scalar, found null"},
        {Named(List({known})), "invalid_argument: tree: expected a scalar, found a list"},
        {Named(Map({{"name", known}})), "invalid_argument: tree: expected a scalar, found a map"},
        {Named(0), "invalid_argument: scalar: expected a string, found an integer"},
        {Named(93), "invalid_argument: scalar: expected a string, found an integer"},
        {Named(0.5), "invalid_argument: scalar: expected a string, found a float"},
        {Named(true), "invalid_argument: scalar: expected a string, found a bool"},
        {PropertyTree(known), "invalid_argument: tree: expected a map, found a scalar"},
        {PropertyTree(5), "invalid_argument: tree: expected a map, found a scalar"},
        {List({Named(known)}), "invalid_argument: tree: expected a map, found a list"},
        {Named(""), "Exception: Unknown Effect Setting type ()!"},
        {Named("EFFECT_NOTHING"), "Exception: Unknown Effect Setting type (EFFECT_NOTHING)!"},
        {Named("effect_acid"), "Exception: Unknown Effect Setting type (effect_acid)!"},
        {Named(" EFFECT_ACID"), "Exception: Unknown Effect Setting type ( EFFECT_ACID)!"},
        {Named("EFFECT_BLEND"), "Exception: Unknown Effect Setting type (EFFECT_BLEND)!"}, // known, but not registered
        {Named("%s%n"), "Exception: Unknown Effect Setting type (%s%n)!"},
        {Named("\xff\xc0\x80"), "Exception: Unknown Effect Setting type (\xff\xc0\x80)!"},
        {Named(std::string("\0", 1)), std::string("Exception: Unknown Effect Setting type (\0)!", 43)},
        {Named(std::string("EFFECT_ACID\0", 12)), std::string("Exception: Unknown Effect Setting type (EFFECT_ACID\0)!", 54)},
        {Named(std::string("EFFECT_ACID\0S", 13)), std::string("Exception: Unknown Effect Setting type (EFFECT_ACID\0S)!", 55)},
        {Named(std::string("\0EFFECT_ACID", 12)), std::string("Exception: Unknown Effect Setting type (\0EFFECT_ACID)!", 54)},
        Refused(std::string(length, 'x')),
        Refused(std::string(length, '\0')),
        Refused(known + std::string(length, ' ')),
    };
}

// Long names would make a report that nobody reads.
std::string Shown(const std::string& text)
{
    return text.size() < 200 ? text : text.substr(0, 200) + "... of " + std::to_string(text.size());
}

TEST(Names, FailByFixedTextsAndLeaveTheEffect)
{
    std::shared_ptr<IEffectSettings> effect = IEffectSettings::CreateEffectSettings("EFFECT_VIBRANCE");
    effect->GetPropertyAccess()->SetProperty("strength", 3);
    const auto before = effect;
    std::shared_ptr<IEffectSettings> none;
    for (const Case& each : Cases())
    {
        EXPECT_EQ(Shown(FailureOf([&] { EffectSettings::DeserializePtr(each.tree, effect); })), Shown(each.failure));
        EXPECT_TRUE(FailureOf([&] { EffectSettings::DeserializePtr(each.tree, none); }) == each.failure);
        ASSERT_EQ(effect, before) << Shown(each.failure);
        EXPECT_FALSE(none) << Shown(each.failure);
    }
    EXPECT_EQ(StoredForm(*effect), Map({{"strength", 3}}));
}

TEST(Names, OfTheRegistryAreNotCutEither)
{
    for (const Case& each : Cases())
    {
        if (each.failure.starts_with("Exception"))
        {
            const std::string name = each.tree["name"].getScalar().toString();
            EXPECT_TRUE(FailureOf([&] { IEffectSettings::CreateEffectSettings(name); }) == each.failure) << Shown(name);
        }
    }
}

// A name with a zero inside is one of its own, beside the one that ends there.
TEST(Names, WithAZeroInsideCanBeRegistered)
{
    const std::string id("EFFECT_ACID\0of a caller", 23);
    IEffectSettings::RegisterFactory(id, [] { return IEffectSettings::CreateEffectSettings("EFFECT_VIBRANCE"); });
    std::shared_ptr<IEffectSettings> effect;
    EffectSettings::DeserializePtr(Map({{"name", id}, {"strength", 5}}), effect);
    EXPECT_EQ(StoredForm(*effect), Map({{"strength", 5}}));
    EffectSettings::DeserializePtr(Map({{"name", "EFFECT_ACID"}}), effect);
    EXPECT_EQ(effect->GetClassId(), "EFFECT_ACID");
}

// Wherever an effect stands in another one, the failure comes out as it is, and the elements before it stay.
TEST(Names, FailInEveryListOfEffects)
{
    const PropertyTree good = Map({{"name", "EFFECT_VIBRANCE"}, {"strength", 3}});
    struct Place
    {
        const char* classId;
        PropertyTree (*tree)(const PropertyTree& effects);
        PropertyTree left;
    };
    const Place places[] = {
        {"EffectsPackageOneInputWithBrush",
         [](const PropertyTree& effects) {
             return Map({{"foregroundEffects", effects}});
         },
         Map({{"foregroundEffects", List({good})}})},
        {"EffectsPackageOneInputWithBrush",
         [](const PropertyTree& effects) {
             return Map({{"backgroundEffects", effects}});
         },
         Map({{"backgroundEffects", List({good})}})},
        {"effectSettingsTileStub",
         [](const PropertyTree& effects) {
             return Map({{"pre", effects}});
         },
         Map({{"pre", List({good})}})},
        {"effectSettingsTileStub",
         [](const PropertyTree& effects) {
             return Map({{"post", effects}});
         },
         Map({{"post", List({good})}})},
        {"effectSettingsTileStub",
         [](const PropertyTree& effects) {
             return Map({{"effectRows", List({Map({}), Map({{"cols", List({effects})}})})}});
         },
         Map({{"effectRows", List({Map({})})}})},
        {"SettingsEffectFacePackage",
         [](const PropertyTree& effects)
         {
             PropertyTree items = List({});
             for (const PropertyTree& effect : effects.getList())
             {
                 items.append(Map({{"effect", effect}}));
             }
             return Map({{"facesEffects", items}});
         },
         Map({{"facesEffects", List({Map({{"effect", good}})})}})},
    };
    for (const Place& place : places)
    {
        for (const Case& each : Cases())
        {
            const auto effect = IEffectSettings::CreateEffectSettings(place.classId);
            const PropertyTree tree = place.tree(List({good, each.tree, good}));
            EXPECT_EQ(Shown(FailureOf([&] { effect->Deserialize(tree); })), Shown(each.failure)) << place.classId;
            EXPECT_EQ(StoredForm(*effect), place.left) << place.classId << ", " << Shown(each.failure);
        }
    }
}

} // namespace

class NamesTest : public CatalogueTest
{
};

// A class reads its own keys: the name, right or wrong, is nothing to it.
TEST_P(NamesTest, AreNothingToTheClassItself)
{
    for (const PropertyTree& name :
         {PropertyTree(), PropertyTree(5), PropertyTree("EFFECT_NOTHING"), PropertyTree(""), List({}), Map({})})
    {
        PropertyTree tree = SampleForm();
        tree["name"] = name;
        const auto effect = Make();
        effect->Deserialize(tree);
        EXPECT_EQ(effect->GetClassId(), GetParam().classId);
        EXPECT_FALSE(StoredForm(*effect).contains("name")) << testing::PrintToString(name);
        for (const Field& field : GetParam().fields)
        {
            EXPECT_EQ(Get(*effect, field.key), Sample(field)) << field.key << ", " << testing::PrintToString(name);
        }
    }
}

// Names that differ from a class id in one place make no effect.
TEST_P(NamesTest, AreComparedInFull)
{
    const std::string& id = GetParam().classId;
    std::shared_ptr<IEffectSettings> effect;
    for (const std::string& name : {id + '\0', id + ' ', id.substr(0, id.size() - 1), id.substr(1), '\0' + id, id + id})
    {
        EXPECT_EQ(FailureOf([&] { EffectSettings::DeserializePtr(Named(name), effect); }), "Exception: " + Unknown(name));
        EXPECT_FALSE(effect) << name;
    }
}

INSTANTIATE_TEST_SUITE_P(All, NamesTest, testing::ValuesIn(Catalogue::All()),
                         [](const auto& row) { return row.param.className; });

} // namespace Catalogue
