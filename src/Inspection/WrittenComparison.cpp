#include "Inspection/WrittenComparison.h"

#include "Inspection/Usable.h"
#include "Inspection/Values.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <string>

namespace Ombrel::Inspection
{
namespace
{

using Proc::FieldSchema;
using Proc::RecordSchema;
using Proc::ValueKind;
using Proc::ValueSchema;

// Whether an effect stands in the value, other than null.
bool HasEffect(const PropertyTree& value, const ValueSchema& schema)
{
    if (schema.kind == ValueKind::Effect)
    {
        return !value.isNull();
    }
    if (value.isList() && schema.element)
    {
        return std::ranges::any_of(value.getList(),
                                   [&](const PropertyTree& element) { return HasEffect(element, *schema.element); });
    }
    if (value.isMap() && schema.kind == ValueKind::Record)
    {
        return std::ranges::any_of(schema.record().fields,
                                   [&](const FieldSchema& field)
                                   {
                                       const auto found = value.getMap().find(field.key);
                                       return found != value.getMap().end() && HasEffect(found->second, *field.value);
                                   });
    }
    return false;
}

} // namespace

const PropertyTree& WrittenComparison::ReadAs(const PropertyTree& given)
{
    const Finding* finding = m_findings.About(given);
    return finding && SeverityOf(finding->code) == Severity::Warning ? finding->becomes : given;
}

void WrittenComparison::CompareMembers(const Map& given, const Map& written, const RecordSchema& schema, const Place& place)
{
    const Children there(schema, given);
    const Children again(schema, written);
    for (std::size_t index = 0; index != schema.fields.size(); ++index)
    {
        const FieldSchema& field = schema.fields[index];
        const Place at{.parent = &place, .key = field.key};
        if (there[index])
        {
            if (m_findings.HasError(*there[index]))
            {
                continue;
            }
            if (again[index])
            {
                Compare(*there[index], *again[index], *field.value, at);
            }
            else if (!HasEffect(*there[index], *field.value))
            {
                Omitted(*there[index], m_context.infos.DefaultsOf(schema)[index], *field.value, at);
            }
        }
        else if (again[index] && !(again[index]->isMap() && again[index]->getMap().empty()))
        {
            Finding& finding = m_findings.Add(FindingCode::ChangesOnWrite, at, nullptr,
                                              "it is not there and is written as " + Shown(*again[index]));
            finding.becomes = *again[index];
        }
    }
}

void WrittenComparison::OmittedInElements(const PropertyTree& list, const ValueSchema& schema, const Place& place)
{
    if (schema.kind == ValueKind::ColorMap || schema.element->kind <= ValueKind::Color)
    {
        return;
    }
    for (std::size_t index = 0; index != list.getList().size(); ++index)
    {
        const PropertyTree& element = list.getList()[index];
        const Place at{.parent = &place, .key = {}, .index = index};
        if (schema.element->kind != ValueKind::Record)
        {
            OmittedInElements(element, *schema.element, at);
            continue;
        }
        const RecordSchema& record = schema.element->record();
        const std::vector<PropertyTree>& defaults = m_context.infos.DefaultsOf(record);
        for (const auto& [key, child] : element.getMap())
        {
            const std::size_t field = *Proc::FindField(record, key);
            if (AreSame(child, defaults[field]))
            {
                Omitted(child, defaults[field], *record.fields[field].value, Place{.parent = &at, .key = key});
            }
        }
    }
}

void WrittenComparison::Compare(const PropertyTree& given, const PropertyTree& written, const ValueSchema& schema,
                                const Place& place)
{
    switch (schema.kind)
    {
    case ValueKind::Effect:
        return;
    case ValueKind::Record:
        return CompareMembers(given.getMap(), written.getMap(), schema.record(), place);
    case ValueKind::List:
        if (given.isList())
        {
            CompareLists(given, written, schema, place);
        }
        return;
    case ValueKind::Set:
    case ValueKind::ColorMap:
        if (given.isList())
        {
            CompareUnordered(given, written, schema, place);
        }
        return;
    default:
        if (!AreSame(ReadAs(given), written))
        {
            AddChanged(given, written, place);
        }
    }
}

void WrittenComparison::CompareLists(const PropertyTree& given, const PropertyTree& written, const ValueSchema& schema,
                                     const Place& place)
{
    const PropertyTree::List& list = given.getList();
    const auto usable =
        std::ranges::count_if(list, [&](const PropertyTree& element) { return !IsUnusable(element, schema, m_findings); });
    if (static_cast<std::size_t>(usable) != written.getList().size())
    {
        return AddChanged(given, written, place);
    }
    auto again = written.getList().begin();
    for (std::size_t index = 0; index != list.size(); ++index)
    {
        if (!IsUnusable(list[index], schema, m_findings))
        {
            Compare(list[index], *again++, *schema.element, Place{.parent = &place, .key = {}, .index = index});
        }
    }
}

// Elements of sets are scalars, those of colour maps have two scalars each.
bool WrittenComparison::AreSameElements(const PropertyTree& a, const PropertyTree& b)
{
    return a.isMap() && b.isMap() ? std::ranges::equal(a.getMap(), b.getMap(),
                                                       [this](const auto& one, const auto& other) {
                                                           return one.first == other.first && !m_findings.About(one.second) &&
                                                                  AreSame(one.second, other.second);
                                                       })
                                  : AreSame(a, b);
}

// Each element must be written again, and no other.
void WrittenComparison::CompareUnordered(const PropertyTree& given, const PropertyTree& written, const ValueSchema& schema,
                                         const Place& place)
{
    const PropertyTree::List& list = given.getList();
    if (std::ranges::equal(list, written.getList(),
                           [this](const PropertyTree& element, const PropertyTree& again)
                           { return !m_findings.About(element) && AreSameElements(element, again); }))
    {
        return;
    }
    std::map<std::string, std::size_t> left; // written elements that no given one stands for
    for (const PropertyTree& element : written.getList())
    {
        ++left[KeyOf(element)];
    }
    for (std::size_t index = 0; index != given.getList().size(); ++index)
    {
        const PropertyTree& element = given.getList()[index];
        Finding* finding = m_findings.About(element);
        if (IsUnusable(element, schema, m_findings) || (finding && finding->mend == Mend::Remove))
        {
            continue; // it is told already that it goes
        }
        const auto found = left.find(KeyOf(ElementRead(element)));
        if (found != left.end() && found->second != 0)
        {
            --found->second;
            continue;
        }
        if (!finding)
        {
            finding = &m_findings.Add(FindingCode::ChangesOnWrite, Place{.parent = &place, .key = {}, .index = index}, &element,
                                      "it is not written again");
        }
        finding->mend = Mend::Remove;
    }
    if (std::ranges::any_of(left, [](const auto& entry) { return entry.second != 0; }))
    {
        AddChanged(given, written, place);
    }
}

// An element of a colour map is read field by field.
PropertyTree WrittenComparison::ElementRead(const PropertyTree& element)
{
    if (!element.isMap())
    {
        return ReadAs(element);
    }
    PropertyTree read;
    for (const char* key : {"key", "value"})
    {
        if (element.contains(key))
        {
            read[key] = ReadAs(element[key]);
        }
    }
    return read;
}

void WrittenComparison::AddChanged(const PropertyTree& given, const PropertyTree& written, const Place& place)
{
    Finding* finding = m_findings.About(given);
    if (!finding || SeverityOf(finding->code) == Severity::Note)
    {
        finding =
            &m_findings.Add(FindingCode::ChangesOnWrite, place, &given, Shown(given) + " is written as " + Shown(written));
    }
    finding->becomes = written;
    finding->mend = Mend::None;
    m_changed.emplace_back(finding, &given);
}

void WrittenComparison::Omitted(const PropertyTree& given, const PropertyTree& byDefault, const ValueSchema& schema,
                                const Place& place)
{
    Finding* finding = m_findings.About(given);
    const bool isTold = finding && SeverityOf(finding->code) == Severity::Warning;
    const bool isScalar = schema.kind <= ValueKind::Color || schema.kind == ValueKind::Other;
    const bool isDefault = !isScalar || AreSame(ReadAs(given), byDefault);
    if (!isTold)
    {
        finding = &m_findings.Add(isDefault ? FindingCode::DefaultWritten : FindingCode::ChangesOnWrite, place, &given,
                                  isDefault ? "it has its default and is not written again" : "it is not written again");
    }
    finding->mend = Mend::Remove;
}

} // namespace Ombrel::Inspection
