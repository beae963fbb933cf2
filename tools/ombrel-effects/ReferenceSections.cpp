#include "ReferenceSections.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <tuple>

namespace Ombrel::EffectsTool
{
namespace
{

using Proc::RecordSchema;
using Proc::ValueSchema;

// The uses of a record that belongs to no settings class.
struct Uses
{
    std::size_t page; // the first
    std::set<const RecordSchema*> parents;
};

// Walks down from the classes to the records that they hold.
class UseFinder
{
public:
    explicit UseFinder(const std::map<const RecordSchema*, std::size_t>& classes) : m_classes(classes) {}

    void Visit(const RecordSchema& parent, std::size_t page)
    {
        for (const Proc::FieldSchema& field : parent.fields)
        {
            for (const ValueSchema* leaf : LeavesOf(*field.value))
            {
                if (leaf->record && !m_classes.contains(&leaf->record()))
                {
                    const RecordSchema& record = leaf->record();
                    m_uses.try_emplace(&record, Uses{page, {}}).first->second.parents.insert(&parent);
                    Visit(record, page);
                }
            }
        }
    }

    const std::map<const RecordSchema*, Uses>& Found() const { return m_uses; }

private:
    const std::map<const RecordSchema*, std::size_t>& m_classes;
    std::map<const RecordSchema*, Uses> m_uses;
};

} // namespace

bool IsPair(const RecordSchema& record)
{
    return record.name == "pair";
}

std::vector<const ValueSchema*> LeavesOf(const ValueSchema& value)
{
    if (value.element)
    {
        return LeavesOf(*value.element);
    }
    if (!value.record || !IsPair(value.record()))
    {
        return {&value};
    }
    std::vector<const ValueSchema*> leaves;
    for (const Proc::FieldSchema& part : value.record().fields)
    {
        std::ranges::copy(LeavesOf(*part.value), std::back_inserter(leaves));
    }
    return leaves;
}

PropertyTree DefaultsOf(const RecordSchema& record)
{
    constexpr Proc::WriteFlags everything{.resetTargets = true, .omitDefaults = false};
    PropertyTree defaults;
    defaults.convertToMap();
    record.write(record.defaults(), defaults.getMap(), &everything, 0);
    return defaults;
}

ReferenceSections::ReferenceSections(const std::vector<ReferencePage>& pages) : m_pages(pages)
{
    AddClasses();
    AddRecords();
    AddEnumerations();
}

void ReferenceSections::AddClasses()
{
    for (std::size_t page = 0; page < m_pages.size(); ++page)
    {
        for (const NotedClass& noted : m_pages[page].classes)
        {
            const RecordSchema* schema = noted.effectClass->getSchema();
            if (schema)
            {
                m_ofRecord.emplace(schema, m_sections.size());
            }
            m_sections.push_back({page, noted.effectClass->className, schema, &noted});
        }
    }
}

void ReferenceSections::AddRecords()
{
    UseFinder finder(m_ofRecord);
    for (const ReferenceSection& section : m_sections)
    {
        if (section.schema)
        {
            finder.Visit(*section.schema, section.page);
        }
    }
    for (const auto& [record, uses] : finder.Found())
    {
        if (uses.parents.size() > 1)
        {
            m_sections.push_back({uses.page, record->name, record, nullptr});
        }
    }
    std::ranges::sort(m_sections, {},
                      [](const ReferenceSection& section)
                      { return std::tuple(section.page, section.notedClass == nullptr, section.title); });
    m_ofRecord.clear();
    for (std::size_t index = 0; index < m_sections.size(); ++index)
    {
        m_ofRecord.emplace(m_sections[index].schema, index);
    }
}

void ReferenceSections::AddEnumerations()
{
    for (std::size_t index = 0; index < m_sections.size(); ++index)
    {
        for (const ReferenceRow& row : RowsOf(m_sections[index]))
        {
            for (const ValueSchema* leaf : LeavesOf(*row.value))
            {
                if (leaf->names)
                {
                    m_ofEnumeration.emplace(leaf->names, index);
                }
            }
        }
    }
}

const ReferenceSection* ReferenceSections::Find(const RecordSchema& record) const
{
    const auto found = m_ofRecord.find(&record);
    return found == m_ofRecord.end() ? nullptr : &m_sections[found->second];
}

const ReferenceSection& ReferenceSections::Find(const Proc::EnumNameTable& names) const
{
    return m_sections[m_ofEnumeration.at(&names)];
}

std::vector<ReferenceRow> ReferenceSections::RowsOf(const ReferenceSection& section) const
{
    std::vector<ReferenceRow> rows;
    if (section.schema)
    {
        AddRows(rows, "", *section.schema);
    }
    return rows;
}

void ReferenceSections::AddRows(std::vector<ReferenceRow>& rows, const std::string& prefix, const RecordSchema& record) const
{
    const PropertyTree defaults = DefaultsOf(record);
    for (const Proc::FieldSchema& field : record.fields)
    {
        const std::string path = prefix + std::string(field.key);
        rows.push_back({path, field.value, defaults[std::string(field.key)], field.access});
        AddRowsWithin(rows, path, *field.value);
    }
}

void ReferenceSections::AddRowsWithin(std::vector<ReferenceRow>& rows, const std::string& path, const ValueSchema& value) const
{
    if (value.element)
    {
        AddRowsWithin(rows, path + "/*", *value.element);
    }
    else if (value.record && IsPair(value.record()))
    {
        for (const Proc::FieldSchema& part : value.record().fields)
        {
            AddRowsWithin(rows, path + "/" + std::string(part.key), *part.value);
        }
    }
    else if (value.record && !Find(value.record()))
    {
        AddRows(rows, path + "/", value.record());
    }
}

} // namespace Ombrel::EffectsTool
