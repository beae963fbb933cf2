#include "Inspection/Describe.h"
#include "catalogue/Catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

// What is described of each class of the library is what the rows say, which are written by hand.
namespace
{

using namespace Ombrel::Inspection;
using Catalogue::Effect;
using Catalogue::Field;
using Catalogue::Kind;

const std::map<Kind, std::string> TEXTS{
    {Kind::Int32, "int32"},     {Kind::UInt32, "uint32"},
    {Kind::UInt8, "uint8"},     {Kind::UInt64, "uint64"},
    {Kind::Int64, "int64"},     {Kind::Float64, "float64"},
    {Kind::Float32, "float32"}, {Kind::Bool, "bool"},
    {Kind::String, "text"},     {Kind::Enum, "name"},
    {Kind::Color, "colour"},    {Kind::ColorMap, "colour map"},
    {Kind::List, "list of "},   {Kind::EffectList, "of effect"},
    {Kind::Set, "set of name"},
};

// The rows say which values are scaled or held within bounds, and not which are turned.
const std::set<std::string> COMPUTED{
    "BlendSettings/alpha",
    "BlendSettings/blendingMode",
    "ColorBalanceSettings/hue",
    "AdjusterSettings/colorBalance/hue",
    "FishEyeSettings/deviation",
    "OilPaintSettings/radius",
    "RetroArtefactsSettings/grain",
    "RetroArtefactsSettings/scratches",
    "RetroArtefactsSettings/rollerTrack",
};

class DescribeCatalogue : public testing::TestWithParam<Effect>
{
protected:
    void ExpectNames(const Field& field, const ValueDescription& value, const std::string& where)
    {
        const ValueDescription& names = value.element.empty() ? value : value.element.front();
        ASSERT_EQ(names.names.size(), field.names.size()) << where;
        for (std::size_t index = 0; index != field.names.size(); ++index)
        {
            EXPECT_EQ(names.names[index].name, field.names[index].name) << where;
            EXPECT_EQ(names.names[index].number, field.names[index].value) << where;
        }
        EXPECT_EQ(names.fallback, field.fallback) << where;
        EXPECT_EQ(names.takesNumbers, field.takesNumbers) << where;
    }

    void ExpectFields(const std::vector<Field>& rows, std::vector<FieldDescription> fields, const EffectDescription& effect,
                      const std::string& where)
    {
        ASSERT_EQ(fields.size(), rows.size()) << where;
        for (std::size_t index = 0; index != rows.size(); ++index)
        {
            const Field& row = rows[index];
            const FieldDescription& field = fields[index];
            const std::string place = where + '/' + row.key;
            EXPECT_EQ(field.key, row.key) << place;
            EXPECT_EQ(field.defaultValue, row.defaultValue) << place;
            EXPECT_EQ(field.isAlwaysWritten, row.isAlwaysWritten) << place;
            EXPECT_EQ(field.isComputed, COMPUTED.contains(place)) << place;
            ExpectNames(row, field.value, place);
            if (row.kind != Kind::Record)
            {
                EXPECT_NE(TextOf(field.value).find(TEXTS.at(row.kind)), std::string::npos) << place << TextOf(field.value);
                continue;
            }
            const RecordDescription* record = effect.FindRecord(field.value.record);
            ASSERT_TRUE(record) << place;
            if (!row.nested.empty())
            {
                ExpectFields(row.nested, record->fields, effect, place);
            }
        }
    }
};

TEST_P(DescribeCatalogue, SaysWhatTheRowSays)
{
    const Effect& row = GetParam();
    const auto effect = Describe(row.classId);
    ASSERT_TRUE(effect);
    EXPECT_EQ(effect->classId, row.classId);
    EXPECT_EQ(effect->className, row.className);
    EXPECT_EQ(effect->inputs, row.inputType);
    EXPECT_EQ(effect->isRegistered, row.place != Catalogue::Place::None);
    EXPECT_EQ(effect->isAdditive, row.isAdditive);
    EXPECT_EQ(effect->hasPropertyAccess, row.hasPropertyAccess);
    EXPECT_TRUE(effect->areKeysKnown);

    ASSERT_GE(effect->fields.size(), 2U);
    EXPECT_EQ(effect->fields[0].key, "implName");
    EXPECT_EQ(effect->fields[1].key, "helperSettings");
    const std::vector<FieldDescription> own(effect->fields.begin() + 2, effect->fields.end());
    ExpectFields(row.fields, own, *effect, row.className);
    for (std::size_t index = 0; index != row.fields.size(); ++index)
    {
        EXPECT_EQ(own[index].isCompared, row.fields[index].isCompared) << row.className << '/' << own[index].key;
    }
}

INSTANTIATE_TEST_SUITE_P(Effects, DescribeCatalogue, testing::ValuesIn(Catalogue::All()),
                         [](const auto& row) { return row.param.className; });

} // namespace
