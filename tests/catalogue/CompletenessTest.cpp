#include "Proc/Reflection/EnumNameTable.h"
#include "Proc/Reflection/Schema.h"
#include "catalogue/CatalogueFixture.h"

#include <set>

// Nothing of the library is missing from the rows, which are written by hand.
namespace Catalogue
{
namespace
{

using Ombrel::Proc::FieldSchema;
using Ombrel::Proc::RecordSchema;
using Ombrel::Proc::ValueKind;
using Ombrel::Proc::ValueSchema;

Kind KindOf(const ValueSchema& value)
{
    switch (value.kind)
    {
    case ValueKind::Int32:
        return Kind::Int32;
    case ValueKind::UInt32:
        return Kind::UInt32;
    case ValueKind::UInt8:
        return Kind::UInt8;
    case ValueKind::Int64:
        return Kind::Int64;
    case ValueKind::UInt64:
        return Kind::UInt64;
    case ValueKind::Float64:
        return Kind::Float64;
    case ValueKind::Float32:
        return Kind::Float32;
    case ValueKind::Bool:
        return Kind::Bool;
    case ValueKind::String:
        return Kind::String;
    case ValueKind::Enum:
        return Kind::Enum;
    case ValueKind::Color:
        return Kind::Color;
    case ValueKind::ColorMap:
        return Kind::ColorMap;
    case ValueKind::Record:
        return Kind::Record;
    case ValueKind::Set:
        return Kind::Set;
    case ValueKind::List:
        return value.element->kind == ValueKind::Effect ? Kind::EffectList : Kind::List;
    case ValueKind::Effect:
    case ValueKind::Other:
        break;
    }
    throw std::logic_error("a field of a kind that no row can have");
}

void ExpectNames(const Field& field, const ValueSchema& value, const std::string& where)
{
    ASSERT_EQ(field.names.size(), value.names->rows.size()) << where;
    for (std::size_t i = 0; i < field.names.size(); ++i)
    {
        EXPECT_EQ(field.names[i].name, value.names->rows[i].name) << where;
        EXPECT_EQ(field.names[i].value, value.names->rows[i].value) << where << ", " << field.names[i].name;
    }
    EXPECT_EQ(field.fallback, value.names->fallback) << where;
}

// A row may show what a value is made of by a sample in place of a row for each field of it.
void ExpectKeys(const PropertyTree& sample, const ValueSchema& value, const std::string& where)
{
    if (value.kind == ValueKind::List)
    {
        for (const PropertyTree& element : sample.getList())
        {
            ExpectKeys(element, *value.element, where);
        }
    }
    else if (value.kind == ValueKind::Record)
    {
        EXPECT_EQ(sample.getMap().size(), value.record().fields.size()) << where;
        for (const FieldSchema& field : value.record().fields)
        {
            ASSERT_TRUE(sample.contains(field.key)) << where << '/' << field.key;
            ExpectKeys(sample[field.key], *field.value, where + '/' + std::string(field.key));
        }
    }
}

void ExpectFields(const std::vector<Field>& fields, const RecordSchema& schema, const std::string& where)
{
    ASSERT_EQ(fields.size(), schema.fields.size()) << where;
    for (std::size_t i = 0; i < fields.size(); ++i)
    {
        const ValueSchema& value = *schema.fields[i].value;
        const std::string place = where + '/' + fields[i].key;
        ASSERT_EQ(fields[i].key, schema.fields[i].key) << place;
        ASSERT_EQ(fields[i].kind, KindOf(value)) << place;
        if (value.names)
        {
            ExpectNames(fields[i], value, place);
        }
        else if (value.element && value.element->names)
        {
            ExpectNames(fields[i], *value.element, place);
        }
        else if (!fields[i].nested.empty())
        {
            ExpectFields(fields[i].nested, value.record(), place);
        }
        else
        {
            ExpectKeys(fields[i].sample, value, place);
        }
    }
}

TEST(Catalogue, HasARowForEveryClassOfTheLibrary)
{
    for (const EffectClass& effectClass : EffectClasses())
    {
        EXPECT_EQ(std::ranges::count(All(), std::string(effectClass.className), &Effect::className), 1)
            << effectClass.className;
    }
    EXPECT_EQ(EffectClasses().size(), All().size());
}

TEST(Catalogue, HasEveryKeyAndEveryName)
{
    for (const EffectClass& effectClass : EffectClasses())
    {
        const auto row = std::ranges::find(All(), std::string(effectClass.className), &Effect::className);
        ASSERT_NE(row, All().end()) << effectClass.className;
        if (const RecordSchema* schema = effectClass.getSchema())
        {
            ExpectFields(row->fields, *schema, row->className);
        }
        else
        {
            EXPECT_TRUE(row->fields.empty()) << row->className;
        }
    }
}

TEST(Catalogue, StartUpListIsInOrder)
{
    int last = 0;
    for (const EffectClass& effectClass : EffectClasses())
    {
        if (effectClass.registration != Registration::StartUpList)
        {
            continue;
        }
        const auto row = std::ranges::find(All(), std::string(effectClass.className), &Effect::className);
        ASSERT_NE(row, All().end()) << effectClass.className;
        EXPECT_EQ(static_cast<int>(row->place), last + 1) << effectClass.className;
        last = static_cast<int>(row->place);
    }
    EXPECT_EQ(last, std::ranges::count_if(All(), [](const Effect& row) { return static_cast<int>(row.place) > 0; }));
}
} // namespace
} // namespace Catalogue
