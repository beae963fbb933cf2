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

/// One heading of the reference with one table of keys: a settings class, or a record that stands in several others.
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

/// What stands under which heading, so that each record and each enumeration is written out once and linked elsewhere.
///
/// A record that is that of a settings class is told there. A record that stands in one other record only is told in place,
/// by the paths to its keys. Any other record has a section on the first page that needs it.
class ReferenceSections
{
public:
    /// `pages` must outlive the sections.
    explicit ReferenceSections(const std::vector<ReferencePage>& pages);

    /// In the order of the pages; on a page first the classes and then the records, by their titles.
    const std::vector<ReferenceSection>& All() const { return m_sections; }

    /// The section of a record, or null where it has none.
    const ReferenceSection* Find(const Proc::RecordSchema& record) const;

    /// The section that writes the names of an enumeration out.
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

/// A pair has no name of its own, and a value of its kind is told by the kinds of its two parts.
bool IsPair(const Proc::RecordSchema& record);

/// The kinds that a value is made of: what its lists and pairs hold in the end, or the value itself.
std::vector<const Proc::ValueSchema*> LeavesOf(const Proc::ValueSchema& value);

/// The map with the defaults of all fields.
PropertyTree DefaultsOf(const Proc::RecordSchema& record);

} // namespace Ombrel::EffectsTool

#endif
