#include "Inspection/ValueCheck.h"

#include "Inspection/Nearest.h"
#include "Inspection/Values.h"
#include "Proc/Reflection/EnumNameTable.h"
#include "Proc/Settings/RgbaColor.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
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

} // namespace

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
    while (kept->parent && !kept->isOfEffect)
    {
        chain.push_back(kept);
        kept = kept->parent;
    }
    for (auto step = chain.rbegin(); step != chain.rend(); ++step)
    {
        Place copy = **step;
        copy.parent = kept;
        copy.isOfEffect = *step == &place;
        kept = &m_context.places.emplace_back(copy);
    }
    return kept;
}

} // namespace Ombrel::Inspection
