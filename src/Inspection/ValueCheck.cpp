#include "Inspection/ValueCheck.h"

#include "Inspection/Nearest.h"
#include "Inspection/Values.h"
#include "Proc/Reflection/EnumNameTable.h"
#include "Proc/Settings/RgbaColor.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace Ombrel::Inspection
{
namespace
{

using Proc::ValueKind;
using Proc::ValueSchema;
using Kind = PropertyTreeScalar::Kind;

bool IsNumber(const PropertyTree& value)
{
    return value.isScalar() && (value.getScalar().kind() == Kind::Integer || value.getScalar().kind() == Kind::Float);
}

bool IsText(const PropertyTree& value)
{
    return value.isScalar() && value.getScalar().kind() == Kind::String;
}

// The stored form of what is left of the integer.
std::int64_t CutTo(ValueKind kind, std::int64_t value)
{
    switch (kind)
    {
    case ValueKind::Int32:
        return static_cast<std::int32_t>(value);
    case ValueKind::UInt32:
        return static_cast<std::uint32_t>(value);
    case ValueKind::UInt8:
        return static_cast<std::uint8_t>(value);
    default:
        return value;
    }
}

// Nothing for a number that no integer holds.
std::optional<std::int64_t> IntegerOf(const PropertyTree& value)
{
    try
    {
        return value.getScalar().toInt();
    }
    catch (const std::out_of_range&)
    {
        return std::nullopt;
    }
}

// Where a read ends the text.
std::string_view ColorTextOf(const PropertyTree& value)
{
    return value.getScalar().toCString();
}

std::optional<Proc::RgbaColor> ColorOf(const PropertyTree& value)
{
    try
    {
        return Proc::ColorFromText(ColorTextOf(value));
    }
    catch (const std::logic_error&)
    {
        return std::nullopt;
    }
}

// What a value is told apart by in a set.
PropertyTree ElementRead(const PropertyTree& element, const ValueSchema& schema)
{
    if (schema.kind == ValueKind::Enum && !IsNumber(element))
    {
        return schema.names->ValueOf(IsText(element) ? std::string_view(element.getScalar().toString()) : std::string_view());
    }
    if (schema.kind <= ValueKind::UInt64 && IsNumber(element))
    {
        const std::optional<std::int64_t> integer = IntegerOf(element);
        return integer ? PropertyTree(CutTo(schema.kind, *integer)) : element;
    }
    return element;
}

} // namespace

std::string ExpectedOf(const ValueSchema& schema)
{
    switch (schema.kind)
    {
    case ValueKind::Int32:
        return "an integer from -2147483648 to 2147483647";
    case ValueKind::UInt32:
        return "an integer from 0 to 4294967295";
    case ValueKind::UInt8:
        return "an integer from 0 to 255";
    case ValueKind::Int64:
    case ValueKind::UInt64:
        return "an integer of 64 bits";
    case ValueKind::Float64:
    case ValueKind::Float32:
        return "a number";
    case ValueKind::Bool:
        return "true or false";
    case ValueKind::String:
        return "a text";
    case ValueKind::Enum:
    {
        std::string names = "one of the names ";
        for (const Proc::EnumNameRow& row : schema.names->rows)
        {
            names += (&row == schema.names->rows.data() ? "" : ", ") + Quoted(row.name);
        }
        return names;
    }
    case ValueKind::Color:
        return "a colour of eight hexadecimal digits, such as \"ff0000ff\"";
    case ValueKind::Record:
        return "a map";
    case ValueKind::List:
    case ValueKind::Set:
        return "a list";
    case ValueKind::ColorMap:
        return "a list of maps with \"key\" and \"value\"";
    case ValueKind::Effect:
        return "an effect or null";
    default:
        return {};
    }
}

void ValueCheck::WrongKind(const PropertyTree& value, const Place& place, std::string_view expected)
{
    Finding& finding =
        m_findings.Add(FindingCode::WrongKind, place, &value, "expected " + std::string(expected) + ", found " + Shown(value));
    finding.expected = expected;
    finding.mend = Mend::Remove;
}

void ValueCheck::Check(const PropertyTree& value, const ValueSchema& schema, const Place& place)
{
    switch (schema.kind)
    {
    case ValueKind::Int32:
    case ValueKind::UInt32:
    case ValueKind::UInt8:
    case ValueKind::Int64:
    case ValueKind::UInt64:
        return CheckInteger(value, schema, place);
    case ValueKind::Float64:
    case ValueKind::Float32:
        return CheckFloat(value, schema, place);
    case ValueKind::Bool:
        if (!value.isScalar() || value.getScalar().kind() != Kind::Bool)
        {
            WrongKind(value, place, ExpectedOf(schema));
        }
        return;
    case ValueKind::String:
        if (!IsText(value))
        {
            WrongKind(value, place, ExpectedOf(schema));
        }
        return;
    case ValueKind::Enum:
        return CheckEnum(value, schema, place);
    case ValueKind::Color:
        return CheckColor(value, place);
    case ValueKind::Record:
        if (!value.isMap())
        {
            return WrongKind(value, place, ExpectedOf(schema));
        }
        return CheckRecord(value.getMap(), schema.record(), place);
    case ValueKind::List:
    case ValueKind::Set:
    case ValueKind::ColorMap:
        return CheckSequence(value, schema, place);
    case ValueKind::Effect:
        return AddEffect(value, place);
    case ValueKind::Other:
        return;
    }
}

void ValueCheck::CheckRecord(const PropertyTree::Map& map, const Proc::RecordSchema& schema, const Place& place)
{
    const Children children(schema, map);
    for (std::size_t index = 0; index != schema.fields.size(); ++index)
    {
        if (children[index])
        {
            const Proc::FieldSchema& field = schema.fields[index];
            Check(*children[index], *field.value, Place{.parent = &place, .key = field.key});
        }
    }
    if (children.Count() == map.size())
    {
        return;
    }
    for (const auto& [key, child] : map)
    {
        if (!IsField(&schema, key))
        {
            AddUnknownKey(key, child, &schema, place);
        }
    }
}

bool ValueCheck::IsField(const Proc::RecordSchema* schema, std::string_view key)
{
    return schema && Proc::FindField(*schema, key).has_value();
}

void ValueCheck::AddUnknownKey(std::string_view key, const PropertyTree& value, const Proc::RecordSchema* schema,
                               const Place& place)
{
    NearestName nearest(key);
    if (schema && m_context.MaySearch())
    {
        for (const Proc::FieldSchema& field : schema->fields)
        {
            nearest.Try(field.key);
        }
    }
    Finding& finding = m_findings.Add(FindingCode::UnknownKey, Place{.parent = &place, .key = key}, &value,
                                      "the key is not known, so its value is lost");
    finding.nearest = nearest.Get();
    finding.mend = Mend::Remove;
}

void ValueCheck::CheckInteger(const PropertyTree& value, const ValueSchema& schema, const Place& place)
{
    if (!IsNumber(value))
    {
        return WrongKind(value, place, ExpectedOf(schema));
    }
    const bool isFloat = value.getScalar().kind() == Kind::Float;
    const std::optional<std::int64_t> integer = IntegerOf(value);
    if (!integer)
    {
        Finding& finding =
            m_findings.Add(FindingCode::NumberTooLarge, place, &value, "no integer of 64 bits holds " + Shown(value));
        finding.expected = ExpectedOf(schema);
        finding.mend = Mend::Remove;
        return;
    }
    const std::int64_t cut = CutTo(schema.kind, *integer);
    const bool isTruncated = isFloat && static_cast<double>(*integer) != value.getScalar().toDouble();
    if (cut == *integer && !isTruncated)
    {
        return;
    }
    const FindingCode code = cut != *integer ? FindingCode::CutInteger : FindingCode::TruncatedFloat;
    Finding& finding = m_findings.Add(code, place, &value, Shown(value) + " reads as " + std::to_string(cut));
    finding.expected = ExpectedOf(schema);
    finding.becomes = cut;
    finding.mend = Mend::Replace;
}

void ValueCheck::CheckFloat(const PropertyTree& value, const ValueSchema& schema, const Place& place)
{
    if (!IsNumber(value))
    {
        return WrongKind(value, place, ExpectedOf(schema));
    }
    const PropertyTreeScalar& scalar = value.getScalar();
    const double number = scalar.toDouble();
    if (std::isnan(number))
    {
        m_findings.Add(FindingCode::NotANumber, place, &value, "it is no number").expected = ExpectedOf(schema);
        return;
    }
    const double read = schema.kind == ValueKind::Float32 ? static_cast<double>(static_cast<float>(number)) : number;
    if (!AreSame(PropertyTree(read), value))
    {
        Finding& finding =
            m_findings.Add(FindingCode::NarrowedFloat, place, &value, Shown(value) + " reads as " + Shown(PropertyTree(read)));
        finding.expected = ExpectedOf(schema);
        finding.becomes = read;
        finding.mend = Mend::Replace;
    }
}

void ValueCheck::CheckEnum(const PropertyTree& value, const ValueSchema& schema, const Place& place)
{
    const Proc::EnumNameTable& table = *schema.names;
    const bool isInteger = value.isScalar() && value.getScalar().kind() == Kind::Integer;
    if (value.isScalar() && !IsText(value) && !(isInteger && schema.takesNumbers))
    {
        return WrongKind(value, place, ExpectedOf(schema));
    }
    const std::string_view name = IsText(value) ? std::string_view(value.getScalar().toString()) : std::string_view();
    const bool isKnown = IsText(value) && std::ranges::any_of(table.rows, [&](const auto& row) { return row.name == name; });
    const std::int32_t number = isInteger ? static_cast<std::int32_t>(value.getScalar().toInt()) : table.ValueOf(name);
    const std::string_view read = table.NameOf(number);
    if (isKnown && read == name)
    {
        return;
    }
    const FindingCode code = isInteger ? FindingCode::NumberForName
                             : isKnown ? FindingCode::ChangesOnWrite
                                       : FindingCode::UnknownName;
    Finding& finding = m_findings.Add(code, place, &value, Shown(value) + " reads as " + Quoted(read));
    finding.expected = ExpectedOf(schema);
    finding.becomes = std::string(read);
    // A number without a name is written as "", which reads as another number.
    finding.mend = table.ValueOf(read) == number && !read.empty() ? Mend::Replace : Mend::Remove;
    if (code == FindingCode::UnknownName)
    {
        NearestName nearest(name);
        for (const Proc::EnumNameRow& row : m_context.MaySearch() ? table.rows : decltype(table.rows)())
        {
            nearest.Try(row.name);
        }
        finding.nearest = nearest.Get();
    }
}

void ValueCheck::CheckColor(const PropertyTree& value, const Place& place)
{
    static constexpr ValueSchema COLOR{ValueKind::Color};
    if (!IsText(value))
    {
        return WrongKind(value, place, ExpectedOf(COLOR));
    }
    const std::optional<Proc::RgbaColor> color = ColorOf(value);
    if (!color)
    {
        Finding& finding = m_findings.Add(FindingCode::BadColour, place, &value, Shown(value) + " is no colour");
        finding.expected = ExpectedOf(COLOR);
        finding.mend = Mend::Remove;
        return;
    }
    std::string read = Proc::ToText(*color);
    if (read != value.getScalar().toString())
    {
        Finding& finding =
            m_findings.Add(FindingCode::ColourNotCanonical, place, &value, Shown(value) + " reads as " + Quoted(read));
        finding.expected = ExpectedOf(COLOR);
        finding.becomes = read;
        finding.mend = Mend::Replace;
    }
}

void ValueCheck::CheckSequence(const PropertyTree& value, const ValueSchema& schema, const Place& place)
{
    if (!value.isList())
    {
        Finding& finding = m_findings.Add(FindingCode::IgnoredValue, place, &value,
                                          Shown(value) + " stands where a list is read, and is ignored");
        finding.expected = ExpectedOf(schema);
        // An element that is ignored stays as an empty one.
        finding.mend = place.index == Place::NO_INDEX ? Mend::Remove : Mend::Replace;
        finding.becomes.makeList();
        return;
    }
    const PropertyTree::List& list = value.getList();
    for (std::size_t index = 0; index != list.size(); ++index)
    {
        const Place element{.parent = &place, .key = {}, .index = index};
        if (schema.kind == ValueKind::ColorMap)
        {
            CheckColorElement(list[index], *schema.element, element);
        }
        else
        {
            Check(list[index], *schema.element, element);
        }
    }
    if (schema.kind != ValueKind::List && !IsAscending(list, schema))
    {
        FindDuplicates(list, schema, place);
    }
}

// Both keys are read, and there is no default for either.
void ValueCheck::CheckColorElement(const PropertyTree& element, const ValueSchema& schema, const Place& place)
{
    if (element.isMap())
    {
        const Children children(schema.record(), element.getMap());
        for (std::size_t index = 0; index != schema.record().fields.size(); ++index)
        {
            if (!children[index])
            {
                Finding& finding = m_findings.Add(FindingCode::WrongKind, place, &element,
                                                  "the map has no " + Quoted(schema.record().fields[index].key));
                finding.expected = "a map with \"key\" and \"value\"";
                finding.mend = Mend::Remove;
                return;
            }
        }
    }
    const std::size_t errors = m_findings.ErrorCount();
    Check(element, schema, place);
    if (m_findings.ErrorCount() == errors || !element.isMap())
    {
        return;
    }
    for (const Proc::FieldSchema& field : schema.record().fields)
    {
        if (m_findings.HasError(element[field.key]))
        {
            m_findings.About(element[field.key])->mend = Mend::RemoveElement;
        }
    }
}

// As the library writes sets of numbers and names, and maps of colours: none is there twice.
bool ValueCheck::IsAscending(const PropertyTree::List& list, const ValueSchema& schema)
{
    const bool isMap = schema.kind == ValueKind::ColorMap;
    std::optional<std::int64_t> last;
    for (const PropertyTree& element : list)
    {
        const PropertyTree* value = &element;
        if (isMap)
        {
            const auto key = element.isMap() ? element.getMap().find("key") : PropertyTree::Map::const_iterator();
            if (!element.isMap() || key == element.getMap().end())
            {
                return false;
            }
            value = &key->second;
        }
        std::int64_t number = 0;
        if (!isMap && schema.element->kind == ValueKind::Enum && IsText(*value))
        {
            number = schema.element->names->ValueOf(value->getScalar().toString());
        }
        else if (isMap && value->isScalar() && value->getScalar().kind() == Kind::Integer)
        {
            number = CutTo(ValueKind::UInt8, value->getScalar().toInt());
        }
        else
        {
            return false;
        }
        if (last && number <= *last)
        {
            return false;
        }
        last = number;
    }
    return true;
}

bool ValueCheck::HasErrorInside(const PropertyTree& element)
{
    return std::ranges::any_of(element.getMap(), [this](const auto& entry) { return m_findings.HasError(entry.second); });
}

void ValueCheck::FindDuplicates(const PropertyTree::List& list, const ValueSchema& schema, const Place& place)
{
    // Of the elements of a set the first counts, of a colour map the last.
    const bool isMap = schema.kind == ValueKind::ColorMap;
    std::map<std::string, std::size_t> seen;
    for (std::size_t count = 0; count != list.size(); ++count)
    {
        const std::size_t index = isMap ? list.size() - 1 - count : count;
        const PropertyTree& element = list[index];
        if (m_findings.HasError(element) || (isMap && HasErrorInside(element)))
        {
            continue;
        }
        const PropertyTree read = isMap ? ElementRead(element["key"], *schema.element->record().fields[0].value)
                                        : ElementRead(element, *schema.element);
        if (seen.try_emplace(KeyOf(read), index).second)
        {
            continue;
        }
        const Place at{.parent = &place, .key = {}, .index = index};
        Finding* finding = m_findings.About(element);
        if (!finding)
        {
            finding = &m_findings.Add(FindingCode::DuplicateElement, at, &element, "another element is the same");
        }
        finding->mend = Mend::Remove;
    }
}

void ValueCheck::AddEffect(const PropertyTree& value, const Place& place)
{
    if (value.isNull())
    {
        m_findings.Add(FindingCode::NullEffect, place, &value, "no effect stands here");
        return;
    }
    m_findings.AddEffect({.tree = &value, .place = Kept(place)});
}

// The places of an effect outlive the walk that finds it.
const Place* ValueCheck::Kept(const Place& place)
{
    std::vector<const Place*> chain;
    const Place* kept = &place;
    while (kept->parent && !kept->isKept)
    {
        chain.push_back(kept);
        kept = kept->parent;
    }
    for (auto step = chain.rbegin(); step != chain.rend(); ++step)
    {
        Place copy = **step;
        copy.parent = kept;
        copy.isKept = true;
        kept = &m_context.places.emplace_back(copy);
    }
    return kept;
}

} // namespace Ombrel::Inspection
