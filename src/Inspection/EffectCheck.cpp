#include "Inspection/EffectCheck.h"

#include "Exception/Exception.h"
#include "Inspection/KnownClass.h"
#include "Inspection/Nearest.h"
#include "Inspection/Usable.h"
#include "Inspection/Values.h"
#include "Proc/EffectSettings/SettingsEffectFacePackage.h"
#include "Proc/EffectSettings/TileSettings.h"
#include "Proc/Settings/StoredKeys.h"

#include <algorithm>
#include <exception>
#include <new>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace Ombrel::Inspection
{

using Proc::FieldSchema;

namespace StoredKeys = Proc::StoredKeys;

// Failures of a caller's code are findings.
template <class Action> bool EffectCheck::Try(FindingCode code, const Place& place, const PropertyTree* at, Action action)
{
    std::string reason = "an unknown failure";
    try
    {
        action();
        return true;
    }
    catch (const std::bad_alloc&)
    {
        throw;
    }
    catch (const std::exception& failure)
    {
        reason = DescribeFailure(failure);
    }
    catch (...)
    {
    }
    m_findings.Add(code, place, at, "the class refuses it: " + reason);
    return false;
}

std::vector<std::unique_ptr<Findings::Item>>& EffectCheck::Run()
{
    const PropertyTree& tree = *m_node.tree;
    if (m_node.depth > DEEPEST && !tree.isNull())
    {
        m_findings.Add(FindingCode::TooDeep, *m_node.place, &tree, "effects stand in effects more than 512 levels deep");
    }
    else if (tree.isNull())
    {
        m_findings.Add(FindingCode::NullEffect, *m_node.place, &tree, "no effect stands here");
    }
    else if (!tree.isMap())
    {
        m_findings.Add(FindingCode::NotAnEffect, *m_node.place, &tree, "expected an effect, found " + Shown(tree)).expected =
            "a map with \"name\"";
    }
    else if (FindClass(tree.getMap()))
    {
        CheckEffect(tree.getMap());
    }

    const bool isFacePackage = m_schema == &PhotoCore::SettingsEffectFacePackage::Schema();
    const bool isTile = m_schema == &PhotoCore::TileSettings::Schema();
    for (const auto& item : m_findings.Items())
    {
        if (EffectNode* inner = std::get_if<EffectNode>(item.get()))
        {
            inner->depth = m_node.depth + 1;
            inner->isCopied = isFacePackage || (isTile && m_node.isCopied);
        }
    }
    return m_findings.Items();
}

// Whether there is anything below to look at.
bool EffectCheck::FindClass(const Map& map)
{
    const auto name = map.find(StoredKeys::NAME);
    if (name == map.end())
    {
        m_findings.Add(FindingCode::NoName, *m_node.place, nullptr, "the effect has no \"name\"").expected = "a class id";
        return false;
    }
    const Place place{.parent = m_node.place, .key = StoredKeys::NAME};
    if (!name->second.isScalar() || name->second.getScalar().kind() != PropertyTreeScalar::Kind::String)
    {
        m_values.Check(name->second, IMPL_NAME_VALUE, place);
        return false;
    }
    const std::string& id = name->second.getScalar().toString();
    m_class = PhotoCore::FindEffectClass(id);
    if (!m_class)
    {
        if (PhotoCore::IsRegistered(id))
        {
            m_findings.Add(FindingCode::NoSchema, *m_node.place, nullptr,
                           "the class has a factory alone, so its keys are not known");
            return false;
        }
        NearestName nearest(id);
        if (m_context.MaySearch())
        {
            for (const std::string& known : PhotoCore::RegisteredClassIds())
            {
                nearest.Try(known);
            }
        }
        Finding& finding = m_findings.Add(FindingCode::UnknownEffect, place, &name->second, Quoted(id) + " is no known effect");
        finding.expected = "a class id";
        finding.nearest = nearest.Get();
        return false;
    }
    if (m_class->registration == PhotoCore::Registration::None)
    {
        m_findings.Add(FindingCode::NotRegistered, place, &name->second, Quoted(id) + " cannot be made by its class id");
        return false;
    }
    m_schema = m_class->getSchema();
    if (!AreKeysKnown(m_class))
    {
        m_findings.Add(FindingCode::NoSchema, *m_node.place, nullptr, "the class has no field list, so its keys are not known");
        return false;
    }
    return true;
}

void EffectCheck::CheckEffect(const Map& map)
{
    const bool isOwn = IsOwn(*m_class);
    if (!m_schema)
    {
        CheckBaseMembers(map);
        CheckKeys(map, 0);
        return;
    }
    m_info = &m_context.infos.Of(*m_schema);
    const Children children(*m_schema, map);
    // Where a caller's class refuses, it is asked before; the library's own only where the kinds of the values do not tell all.
    if (!isOwn && !Make())
    {
        return;
    }
    if (children.Count() + 1 == map.size())
    {
        m_baseMembers = 1; // the name
    }
    else
    {
        CheckBaseMembers(map);
    }
    CheckFields(children, isOwn);
    if (isOwn && MustTry(children) && Make())
    {
        ReadOwn(children);
    }
    if (m_schema == &PhotoCore::TileSettings::Schema())
    {
        CheckRows(map);
    }
    CheckKeys(map, children.Count());
    // A caller's getter may throw.
    Try(FindingCode::ChangesOnWrite, *m_node.place, nullptr, [&] { CompareWithWritten(map, children); });
}

// Whether the effect is written as it stands, which is the rule: then there is nothing to look for.
bool EffectCheck::IsSameBesideBaseMembers(const Map& map, const Map& written) const
{
    if (!m_findings.IsEmpty() || map.size() != written.size() + m_baseMembers)
    {
        return false;
    }
    auto next = written.begin();
    for (const auto& [key, child] : map)
    {
        if (next != written.end() && next->first == key)
        {
            if (next->second != child)
            {
                return false;
            }
            ++next;
        }
    }
    return next == written.end();
}

// Whether only reading and writing tell what they do.
bool EffectCheck::MustTry(const Children& children)
{
    if (m_info->hasSetters)
    {
        return true;
    }
    for (std::size_t index = 0; index != m_schema->fields.size(); ++index)
    {
        if (children[index] && !m_info->isPlain[index] &&
            !(m_info->isSimpleList[index] && IsSimpleList(*children[index], index)))
        {
            return true;
        }
    }
    return false;
}

// A list that is not empty differs from a default that is, so it is written.
bool EffectCheck::IsSimpleList(const PropertyTree& value, std::size_t index)
{
    if (!m_findings.IsEmpty() || !value.isList() || value.getList().empty())
    {
        return false;
    }
    const PropertyTree& byDefault = m_context.infos.DefaultsOf(*m_schema)[index];
    return byDefault.isList() && byDefault.getList().empty();
}

// Keys that neither the effect nor its record has; `known` are of the record.
void EffectCheck::CheckKeys(const Map& map, std::size_t known)
{
    if (known + m_baseMembers == map.size())
    {
        return;
    }
    for (const auto& [key, child] : map)
    {
        if (std::ranges::find(StoredKeys::RESERVED, std::string_view(key)) == StoredKeys::RESERVED.end() &&
            !ValueCheck::IsField(m_schema, key))
        {
            m_values.AddUnknownKey(key, child, m_schema, *m_node.place);
        }
    }
}

bool EffectCheck::Make()
{
    return Try(FindingCode::Refused, *m_node.place, m_node.tree,
               [&]
               {
                   m_effect = m_class->create();
                   if (!m_effect)
                   {
                       throw std::logic_error("its factory made no effect");
                   }
                   m_object = m_class->getStored(*m_effect);
               });
}

// A caller's setters may refuse a value, so each is tried where it stands. The library's own may not, so they are tried at
// once.
void EffectCheck::CheckFields(const Children& children, bool isOwn)
{
    const std::vector<bool>& holdsEffects = m_info->holdsEffects;
    for (std::size_t index = 0; index != m_schema->fields.size(); ++index)
    {
        if (!children[index])
        {
            continue;
        }
        const FieldSchema& field = m_schema->fields[index];
        const Place place{.parent = m_node.place, .key = field.key};
        const std::size_t before = m_findings.Items().size();
        m_values.Check(*children[index], *field.value, place);
        if (!isOwn && !m_findings.HasError(*children[index]))
        {
            const bool isWholeField = m_findings.Items().size() == before && !holdsEffects[index];
            Try(FindingCode::Refused, place, children[index], [&] { ReadField(index, *children[index], isWholeField); });
        }
    }
}

// What the library's own setters do with values is tried at once, since they refuse none.
void EffectCheck::ReadOwn(const Children& children)
{
    if (m_findings.IsEmpty()) // and no effect stands in it either
    {
        m_schema->read(m_object, m_node.tree->getMap(), &READ);
        return;
    }
    for (std::size_t index = 0; index != m_schema->fields.size(); ++index)
    {
        if (children[index] && !m_findings.HasError(*children[index]))
        {
            ReadField(index, *children[index], false);
        }
    }
}

void EffectCheck::ReadField(std::size_t index, const PropertyTree& value, bool isWhole)
{
    if (isWhole)
    {
        m_schema->readField(index, m_object, value, &READ);
        return;
    }
    PropertyTree usable;
    CopyUsable(value, usable, *m_schema->fields[index].value, *m_node.place, m_findings, nullptr);
    m_schema->readField(index, m_object, usable, &READ);
}

// A row with another number of cells than the first.
void EffectCheck::CheckRows(const Map& map)
{
    const auto rows = map.find("effectRows");
    if (rows == map.end() || !rows->second.isList())
    {
        return;
    }
    const Place grid{.parent = m_node.place, .key = rows->first};
    const auto cellsOf = [](const PropertyTree& row) -> std::size_t
    { return row.contains("cols") && row["cols"].isList() ? row["cols"].getList().size() : 0; };
    const PropertyTree::List& list = rows->second.getList();
    for (std::size_t index = 1; index < list.size(); ++index)
    {
        if (cellsOf(list[index]) != cellsOf(list.front()))
        {
            m_findings.Add(FindingCode::RaggedRows, Place{.parent = &grid, .key = {}, .index = index}, nullptr,
                           "the row has " + std::to_string(cellsOf(list[index])) + " cells, the first has " +
                               std::to_string(cellsOf(list.front())));
        }
    }
}

void EffectCheck::CompareWithWritten(const Map& map, const Children& children)
{
    if (m_object)
    {
        PropertyTree written;
        m_schema->write(m_object, written.makeMap(), &WRITE, 0);
        if (!IsSameBesideBaseMembers(map, written.getMap()))
        {
            m_comparison.CompareMembers(map, written.getMap(), *m_schema, *m_node.place);
            FindMends(map);
        }
        return;
    }
    for (std::size_t index = 0; index != m_schema->fields.size(); ++index)
    {
        if (!children[index] || m_findings.HasError(*children[index]))
        {
            continue;
        }
        const FieldSchema& field = m_schema->fields[index];
        const PropertyTree& byDefault = m_context.infos.DefaultsOf(*m_schema)[index];
        const Place place{.parent = m_node.place, .key = field.key};
        if (AreSame(m_comparison.ReadAs(*children[index]), byDefault))
        {
            m_comparison.Omitted(*children[index], byDefault, *field.value, place);
        }
        else if (!m_info->isPlain[index])
        {
            m_comparison.OmittedInElements(*children[index], *field.value, place);
        }
    }
}

} // namespace Ombrel::Inspection
