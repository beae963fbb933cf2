#include "Address.h"
#include "FindingText.h"
#include "Inspection/Check.h"
#include "Inspection/Forms.h"
#include "Inspection/Nearest.h"
#include "Proc/Reflection/EnumNameTable.h"
#include "Proc/Settings/StoredKeys.h"
#include "PropertyTreeJson/PropertyTreeJson.h"
#include "Reading.h"
#include "TreeDifference.h"
#include "ValueCommands.h"
#include "Values.h"

#include <algorithm>
#include <utility>

namespace Ombrel::EffectsTool
{
namespace
{

using Inspection::Finding;
using Inspection::FindingCode;
using Inspection::Severity;
using Proc::ValueKind;
using Proc::ValueSchema;

/// One effect of a document that is changed at one place. What is read of it is compared with what was read before.
class Change
{
public:
    Change(const Document& document, const Address& address)
        : m_document(document), m_address(address), m_given(document[address.index]), m_findings(Inspection::Check(m_given)),
          m_before(FullForm(m_given, m_findings))
    {
    }

    Report Set(const std::string& text);
    Report Unset();

private:
    PathView Place() const { return m_address.rest; }
    std::string WhereIs(PathView place) const { return Where(m_document, m_address.index, place); }
    PropertyTree Parse(const std::string& text, const ValueSchema& schema) const;
    PropertyTree WithKeyOf(const PropertyTree& whole) const;
    PropertyTree Stored(const PropertyTree& changed, const PropertyTree& written, const ValueSchema& schema) const;
    PropertyTree Pruned(PropertyTree without) const;
    void RefuseErrors(const std::vector<Finding>& findings) const;
    void RefuseMissingKey(const std::vector<Finding>& findings) const;
    void ComplainOfLostKeys(const std::vector<Finding>& findings, Report& report) const;
    bool IsKeptByMeaning(const ValueSchema& schema, const std::vector<Finding>& findings) const;
    void ComplainOfOthers(const PropertyTree& after, Report& report) const;
    void SetDocument(PropertyTree element, Report& report) const;

    const Document& m_document;
    const Address& m_address;
    const PropertyTree& m_given;
    std::vector<Finding> m_findings;
    PropertyTree m_before; // what is read
};

std::string NearestNames(const std::string& text, const Proc::EnumNameTable& names)
{
    Inspection::NearestName nearest(text);
    std::string all;
    for (const Proc::EnumNameRow& row : names.rows)
    {
        nearest.Try(row.name);
        all += (all.empty() ? "" : ", ") + std::string(row.name);
    }
    return (nearest.Get().empty() ? "" : "did you mean " + nearest.Get() + "? ") + "expected one of " + all;
}

// A text needs no quotes, so that names are easy to type. Any other value is JSON.
PropertyTree Change::Parse(const std::string& text, const ValueSchema& schema) const
{
    OnOneLine(text, WhereIs(Place()) + "the value", false); // throws if it is not UTF-8
    if (schema.kind == ValueKind::String || schema.kind == ValueKind::Enum || schema.kind == ValueKind::Color)
    {
        PropertyTree value(text);
        const bool isName = schema.kind != ValueKind::Enum ||
                            std::ranges::any_of(schema.names->rows, [&](const auto& row) { return row.name == text; });
        if (!isName)
        {
            throw ToolError(ExitCode::Usage,
                            WhereIs(Place()) + ShownInBrief(value) + " is no known name, " + NearestNames(text, *schema.names));
        }
        return value;
    }
    try
    {
        return ReadJson(text, {.nonFiniteAsText = m_document.Options().nonFinite});
    }
    catch (const JsonError&)
    {
        return text; // which the check of the changed effect refuses, and says what may stand there
    }
}
// The stored effect in which everything on the way to the place stands, with the keys that `whole` has there.
PropertyTree Change::WithKeyOf(const PropertyTree& whole) const
{
    PropertyTree changed = m_given;
    for (std::size_t length = 1; length <= Place().size(); ++length)
    {
        if (!Find(changed, Place().first(length)))
        {
            At(changed, Place().first(length - 1))[Place()[length - 1]] = At(whole, Place().first(length));
            break;
        }
    }
    return changed;
}

// A map keeps the keys that the given one does not name.
void Assign(PropertyTree& value, const PropertyTree& given)
{
    if (!value.isMap() || !given.isMap())
    {
        value = given;
        return;
    }
    for (const auto& [key, child] : given.getMap())
    {
        Assign(value[key], child);
    }
}

void Change::RefuseErrors(const std::vector<Finding>& findings) const
{
    for (const Finding& finding : findings)
    {
        if (SeverityOf(finding.code) == Severity::Error && StartsWith(finding.path, Place()))
        {
            throw ToolError(ExitCode::Usage, WhereIs(StepsOf(finding.path)) + MessageOf(finding));
        }
    }
}

// Elements of a map of colours must have both keys.
void Change::RefuseMissingKey(const std::vector<Finding>& findings) const
{
    const auto isErrorAround = [this](const Finding& finding)
    { return SeverityOf(finding.code) == Severity::Error && StartsWith(Place(), finding.path); };
    const auto error = std::ranges::find_if(findings, isErrorAround);
    if (error != findings.end() && std::ranges::none_of(m_findings, isErrorAround))
    {
        throw ToolError(ExitCode::Usage, WhereIs(Place()) + "the key cannot be unset: " + MessageOf(*error));
    }
}

// Of unknown keys, those alone that the value brings: a read does not take them.
void Change::ComplainOfLostKeys(const std::vector<Finding>& findings, Report& report) const
{
    for (const Finding& finding : findings)
    {
        if (finding.code != FindingCode::UnknownKey || !StartsWith(finding.path, Place()))
        {
            continue;
        }
        const Path path = StepsOf(finding.path);
        if (!Find(m_given, path))
        {
            report.Complain(ExitCode::Findings, WhereIs(path) + MessageOf(finding));
        }
    }
}

// A set or a map of colours has no order.
bool Change::IsKeptByMeaning(const ValueSchema& schema, const std::vector<Finding>& findings) const
{
    return (schema.kind == ValueKind::Set || schema.kind == ValueKind::ColorMap) &&
           std::ranges::none_of(findings, [this](const Finding& finding)
                                { return SeverityOf(finding.code) != Severity::Note && StartsWith(finding.path, Place()); });
}

void Change::ComplainOfOthers(const PropertyTree& after, Report& report) const
{
    for (const Difference& difference : DifferencesOf(m_before, after))
    {
        if (!StartsWith(difference.path, Place()) && !StartsWith(Place(), difference.path))
        {
            report.Complain(ExitCode::Findings, WhereIs(difference.path) + TextOf(difference) + " too");
        }
    }
}

// What is stored where the place is not in the file yet, or has its default: what the library writes.
PropertyTree Change::Stored(const PropertyTree& changed, const PropertyTree& written, const ValueSchema& schema) const
{
    PropertyTree stored = m_given;
    for (std::size_t length = 1; length <= Place().size(); ++length)
    {
        const PathView way = Place().first(length);
        if (!Find(stored, way))
        {
            if (const PropertyTree* value = Find(written, way))
            {
                At(stored, way.first(length - 1))[way.back()] = *value;
            }
            return stored;
        }
    }
    const PropertyTree* value = Find(written, Place());
    if (schema.kind > ValueKind::Color || (!value && !At(stored, Place().first(Place().size() - 1)).isMap()))
    {
        return changed;
    }
    if (value)
    {
        At(stored, Place()) = *value;
        return stored;
    }
    At(stored, Place().first(Place().size() - 1)).getMap().erase(Place().back());
    return Pruned(std::move(stored));
}

// Without the maps around the place that are empty now, if that reads the same.
PropertyTree Change::Pruned(PropertyTree without) const
{
    PropertyTree pruned = without;
    for (std::size_t length = Place().size() - 1; length != 0; --length)
    {
        const PropertyTree& around = At(pruned, Place().first(length));
        PropertyTree& parent = At(pruned, Place().first(length - 1));
        if (!around.isMap() || !around.getMap().empty() || !parent.isMap())
        {
            break;
        }
        parent.getMap().erase(Place()[length - 1]);
    }
    return pruned == without || !DifferencesOf(FullForm(without), FullForm(pruned)).empty() ? without : pruned;
}

void Change::SetDocument(PropertyTree element, Report& report) const
{
    if (!m_document.IsList())
    {
        report.SetDocument(m_document, element);
        return;
    }
    PropertyTree tree = m_document.Tree();
    tree.getList()[m_address.index] = std::move(element);
    report.SetDocument(m_document, tree);
}

Report Change::Set(const std::string& text)
{
    const PropertyTree whole = Inspection::Freeze(m_given);
    if (!Find(whole, Place()))
    {
        ThrowNoSuchPlace(m_document, m_address.index, whole, Place());
    }
    const ValueSchema* schema = SchemaAt(whole, Place());
    if (!schema)
    {
        throw ToolError(ExitCode::BadInput, WhereIs(Place()) + "what may stand here is not known");
    }
    const PropertyTree given = Parse(text, *schema);
    PropertyTree changed = WithKeyOf(whole);
    Assign(At(changed, Place()), given);

    Report report;
    const std::vector<Finding> findings = Inspection::Check(changed);
    RefuseErrors(findings);
    ComplainOfLostKeys(findings, report);
    const PropertyTree written = WrittenForm(changed, findings);
    const PropertyTree after = Inspection::Freeze(written);
    const PropertyTree* read = Find(after, Place());
    if (!read || !(IsStoredAs(given, *read) || IsKeptByMeaning(*schema, findings)))
    {
        report.Complain(ExitCode::Findings, WhereIs(Place()) + "given " + ShownInBrief(given) + ", read as " +
                                                (read ? ShownInBrief(*read) : "nothing"));
    }
    ComplainOfOthers(after, report);
    PropertyTree stored = Stored(changed, written, *schema);
    if (stored != changed && !DifferencesOf(FullForm(stored), after).empty())
    {
        stored = changed;
    }
    SetDocument(std::move(stored), report);
    return report;
}

Report Change::Unset()
{
    if (!Find(m_given, Place()))
    {
        ThrowNoSuchPlace(m_document, m_address.index, m_given, Place());
    }
    PropertyTree changed = m_given;
    PropertyTree& parent = At(changed, Place().first(Place().size() - 1));
    if (!parent.isMap())
    {
        throw ToolError(ExitCode::Usage, WhereIs(Place()) + "an element of a list cannot be unset, expected a key");
    }
    parent.getMap().erase(Place().back());
    changed = Pruned(std::move(changed));
    const std::vector<Finding> findings = Inspection::Check(changed);
    RefuseMissingKey(findings);
    Report report;
    ComplainOfOthers(FullForm(changed, findings), report);
    SetDocument(std::move(changed), report);
    return report;
}

// Refuses what is no value within an effect.
Address LocateValue(const Document& document, const Path& path)
{
    Address address = Locate(document, path);
    const std::string where = Where(document, address.index, address.rest);
    if (address.rest.empty())
    {
        throw ToolError(ExitCode::Usage, where + "an effect as a whole cannot be changed, expected a value of it");
    }
    if (document[address.index].isNull())
    {
        throw ToolError(ExitCode::Usage, where + "the effect is null and has no values");
    }
    if (address.rest.back() == Proc::StoredKeys::NAME)
    {
        throw ToolError(ExitCode::Usage, where + "the class of an effect cannot be changed");
    }
    return address;
}

} // namespace

Report SetValue(const Document& document, const Path& path, const std::string& text)
{
    const Address address = LocateValue(document, path);
    return Change(document, address).Set(text);
}

Report UnsetValue(const Document& document, const Path& path)
{
    const Address address = LocateValue(document, path);
    return Change(document, address).Unset();
}

} // namespace Ombrel::EffectsTool
