#include "Inspection/ValueCheck.h"
#include "Inspection/Values.h"
#include "Proc/Reflection/EnumNameTable.h"

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <string_view>

// Lists, sets and maps of colours.
namespace Ombrel::Inspection
{
namespace
{

using Proc::ValueKind;
using Proc::ValueSchema;

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

void ValueCheck::AddIgnored(const PropertyTree& value, const ValueSchema& schema, const Place& place)
{
    Finding& finding =
        m_findings.Add(FindingCode::IgnoredValue, place, &value, Shown(value) + " stands where a list is read, and is ignored");
    finding.expected = ExpectedOf(schema);
    // An element that is ignored stays as an empty one.
    finding.mend = place.index == Place::NO_INDEX ? Mend::Remove : Mend::Replace;
    finding.becomes.makeList();
}

void ValueCheck::CheckSequence(const PropertyTree& value, const ValueSchema& schema, const Place& place)
{
    if (!value.isList())
    {
        return AddIgnored(value, schema, place);
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
        else if (isMap && value->isScalar() && value->getScalar().kind() == PropertyTreeScalar::Kind::Integer)
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

} // namespace Ombrel::Inspection
