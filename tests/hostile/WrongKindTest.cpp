#include "catalogue/CatalogueFixture.h"

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

// What every effect does with a value of a kind that no writer would have stored under its key.
namespace Catalogue
{
namespace
{

enum class Outcome
{
    Taken,    // it is read
    Emptied,  // the empty list is read
    Refused,  // `std::invalid_argument`, and the field stays as it was
    Ignored,  // the field stays as it was
    Fallback, // the enumeration's value for what is no name
};

struct Given
{
    const char* name;
    PropertyTree value;
};

const Given GIVEN[] = {
    {"null", PropertyTree()},    {"bool", true}, {"integer", 1}, {"float", 1.5}, {"string", "no such name"}, {"map", Map({})},
    {"list", Support::List({})},
};

// In the order of `GIVEN`.
struct Row
{
    std::vector<Kind> kinds;
    Outcome outcomes[std::size(GIVEN)];
};

using enum Outcome;

const Row ROWS[] = {
    {{Kind::Int32, Kind::UInt32, Kind::UInt8, Kind::UInt64, Kind::Int64, Kind::Float64, Kind::Float32},
     {Refused, Refused, Taken, Taken, Refused, Refused, Refused}},
    {{Kind::Bool}, {Refused, Taken, Refused, Refused, Refused, Refused, Refused}},
    {{Kind::String}, {Refused, Refused, Refused, Refused, Taken, Refused, Refused}},
    {{Kind::Color}, {Refused, Refused, Refused, Refused, Refused, Refused, Refused}},
    {{Kind::Enum}, {Fallback, Refused, Refused, Refused, Fallback, Fallback, Fallback}},
    {{Kind::Record}, {Refused, Refused, Refused, Refused, Refused, Taken, Refused}},
    {{Kind::List, Kind::Set, Kind::EffectList}, {Ignored, Ignored, Ignored, Ignored, Ignored, Ignored, Emptied}},
    {{Kind::ColorMap}, {Ignored, Ignored, Ignored, Ignored, Ignored, Ignored, Ignored}},
};

Outcome OutcomeOf(const Field& field, std::size_t given)
{
    const auto row =
        std::ranges::find_if(ROWS, [&](const Row& each) { return std::ranges::count(each.kinds, field.kind) != 0; });
    const Outcome outcome = row->outcomes[given];
    if (field.takesNumbers && GIVEN[given].name == std::string("integer"))
    {
        return Taken;
    }
    if (field.key == "mode" && field.kind == Kind::Set)
    {
        return Emptied; // the one that takes what is no list for an empty one
    }
    return outcome == Emptied && field.isAppended ? Ignored : outcome;
}

std::string FallbackName(const Field& field)
{
    const auto found = std::ranges::find(field.names, field.fallback, &EnumName::value);
    return found == field.names.end() ? "" : std::string(found->name);
}

} // namespace

class HostileTest : public CatalogueTest
{
protected:
    // Gives a field of a kind every wrong value, through `give`, and looks at what `get` says of it then.
    template <class Give, class Look> static void Try(const Field& field, const std::string& where, Give give, Look get)
    {
        for (std::size_t i = 0; i < std::size(GIVEN); ++i)
        {
            SCOPED_TRACE(where + ", " + GIVEN[i].name);
            const auto effect = Make();
            give(*effect, field.sample);
            const PropertyTree before = get(*effect);
            const Outcome outcome = OutcomeOf(field, i);
            if (outcome == Refused)
            {
                EXPECT_THROW(give(*effect, GIVEN[i].value), std::invalid_argument);
                EXPECT_EQ(get(*effect), before);
                continue;
            }
            EXPECT_NO_THROW(give(*effect, GIVEN[i].value));
            if (outcome == Taken || !field.target.empty())
            {
                continue;
            }
            EXPECT_EQ(get(*effect), outcome == Emptied    ? Support::List({})
                                    : outcome == Fallback ? PropertyTree(FallbackName(field))
                                                          : before);
        }
    }
};

TEST_P(HostileTest, AWrongKindUnderAKey)
{
    for (const Field& field : GetParam().fields)
    {
        Try(
            field, field.key, [&](IEffectSettings& effect, const PropertyTree& value) { Set(effect, field.key, value); },
            [&](const IEffectSettings& effect) { return Get(effect, field.key); });
        for (const Field& nested : field.nested)
        {
            Try(
                nested, field.key + '.' + nested.key,
                [&](IEffectSettings& effect, const PropertyTree& value) {
                    Set(effect, field.key, Map({{nested.key, value}}));
                },
                [&](const IEffectSettings& effect) { return Get(effect, field.key)[nested.key]; });
        }
    }
}

TEST_P(HostileTest, AReadStopsAtAWrongKind)
{
    const std::vector<Field>& fields = GetParam().fields;
    for (std::size_t stop = 0; stop < fields.size(); ++stop)
    {
        for (std::size_t i = 0; i < std::size(GIVEN); ++i)
        {
            if (OutcomeOf(fields[stop], i) != Refused)
            {
                continue;
            }
            PropertyTree tree = SampleForm();
            tree[fields[stop].key] = GIVEN[i].value;
            const auto effect = Make();
            EXPECT_THROW(effect->Deserialize(tree), std::invalid_argument) << fields[stop].key << ", " << GIVEN[i].name;
            for (std::size_t other = 0; other < fields.size(); ++other)
            {
                EXPECT_EQ(Get(*effect, fields[other].key), other < stop ? Sample(fields[other]) : fields[other].defaultValue)
                    << fields[other].key << " where it stops at " << fields[stop].key << ", " << GIVEN[i].name;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, HostileTest, testing::ValuesIn(Catalogue::All()),
                         [](const auto& row) { return row.param.className; });

} // namespace Catalogue
