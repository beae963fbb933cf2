#ifndef OMBREL_EFFECTS_TOOL_REFERENCE_SECTIONS_H
#define OMBREL_EFFECTS_TOOL_REFERENCE_SECTIONS_H

#include "Proc/Reflection/Schema.h"
#include "PropertyTree/PropertyTree.h"
#include "ReferenceNotes.h"

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace Ombrel::EffectsTool
{

/// One heading of the reference with one table of keys: a settings class, or a record that several others contain.
struct ReferenceSection
{
    std::size_t page;
    std::string_view title;
    const Proc::RecordSchema* schema; // null for a class without keys
    const NotedClass* notedClass;     // null for a record
};

/// One key of a section's table.
struct ReferenceRow
{
    std::string path; // through the nested records; "*" is any index
    const Proc::ValueSchema* value;
    PropertyTree defaultValue; // in the stored form, every key written out
    std::string_view access;   // the way in C++
};

/// The sections of the reference. Each record and each enumeration is described once and linked from elsewhere.
///
/// The record of a settings class is described in the section of the class. A record that only one other record contains is
/// described there, by the paths to its keys. Any other record has a section on the first page that needs it.
class ReferenceSections
{
public:
    /// `pages` must outlive the sections.
    explicit ReferenceSections(const std::vector<ReferencePage>& pages);

    /// In the order of the pages; on a page first the classes and then the records, by their titles.
    const std::vector<ReferenceSection>& All() const { return m_sections; }

    /// The section of a record, or null where it has none.
    const ReferenceSection* Find(const Proc::RecordSchema& record) const;

    /// The section that lists the names of an enumeration.
    const ReferenceSection& Find(const Proc::EnumNameTable& names) const;

    /// The table of a section.
    std::vector<ReferenceRow> RowsOf(const ReferenceSection& section) const;

private:
    void AddClasses();
    void AddRecords();
    void AddEnumerations();
    void AddRows(std::vector<ReferenceRow>& rows, const std::string& prefix, const Proc::RecordSchema& record) const;
    void AddRowsWithin(std::vector<ReferenceRow>& rows, const std::string& path, const Proc::ValueSchema& value) const;

    const std::vector<ReferencePage>& m_pages;
    std::vector<ReferenceSection> m_sections;
    std::map<const Proc::RecordSchema*, std::size_t> m_ofRecord;
    std::map<const Proc::EnumNameTable*, std::size_t> m_ofEnumeration;
};

/// True for a pair, which has no name of its own. The pages show the kinds of its two parts instead.
bool IsPair(const Proc::RecordSchema& record);

/// The values inside the lists and pairs of a value, at any depth; or the value itself if it is neither.
std::vector<const Proc::ValueSchema*> LeavesOf(const Proc::ValueSchema& value);

/// The map with the defaults of all fields.
PropertyTree DefaultsOf(const Proc::RecordSchema& record);

} // namespace Ombrel::EffectsTool

#endif
