#include "Inspection/ReleaseCheck.h"

#include "Inspection/KnownClass.h"
#include "Inspection/TreeSteps.h"
#include "Inspection/Values.h"
#include "Proc/Settings/StoredKeys.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <string>
#include <utility>

namespace Ombrel::Inspection
{
namespace
{

using Proc::RecordSchema;
using Proc::ValueKind;
using Proc::ValueSchema;

namespace StoredKeys = Proc::StoredKeys;

// What follows from the keys, kinds, names and defaults of a release alone.
bool IsOfTheManifest(FindingCode code)
{
    switch (code)
    {
    case FindingCode::WrongKind:
    case FindingCode::BadColour:
    case FindingCode::NumberTooLarge:
    case FindingCode::UnknownName:
    case FindingCode::NumberForName:
    case FindingCode::CutInteger:
    case FindingCode::TruncatedFloat:
    case FindingCode::NarrowedFloat:
    case FindingCode::ColourNotCanonical:
    case FindingCode::IgnoredValue:
    case FindingCode::DuplicateElement:
    case FindingCode::UnknownKey:
    case FindingCode::OtherDefault:
    case FindingCode::DefaultWritten:
    case FindingCode::NotANumber:
        return true;
    default:
        return false;
    }
}

bool IsError(const Finding& finding)
{
    return SeverityOf(finding.code) == Severity::Error;
}

const ValueSchema* OwnValue(const RecordSchema* own, std::string_view key)
{
    if (key == StoredKeys::IMPL_NAME)
    {
        return &IMPL_NAME_VALUE;
    }
    if (key == StoredKeys::HELPER_SETTINGS)
    {
        return &HELPER_SETTINGS_VALUE;
    }
    const auto field = own ? Proc::FindField(*own, key) : std::nullopt;
    return field ? own->fields[*field].value : nullptr;
}

const RecordSchema* OwnRecord(const ValueSchema* own)
{
    return own && own->kind == ValueKind::Record ? &own->record() : nullptr;
}

} // namespace

bool IsOtherFor(const ReleaseValue& released, const PropertyTree& full, const PropertyTree& byDefault)
{
    if (released.record && full.isMap() && byDefault.isMap())
    {
        return std::ranges::any_of(released.record->fields,
                                   [&](const ReleaseField& field)
                                   {
                                       const PathStep key(field.key);
                                       const PropertyTree* here = ChildAt(&full, key);
                                       const PropertyTree* there = ChildAt(&byDefault, key);
                                       return here && there && IsOtherFor(field.value, *here, *there);
                                   });
    }
    if (released.element && full.isList() && byDefault.isList() && !released.IsSimple())
    {
        return !std::ranges::equal(full.getList(), byDefault.getList(),
                                   [&](const PropertyTree& here, const PropertyTree& there)
                                   { return !IsOtherFor(*released.element, here, there); });
    }
    return IsUnordered(&released.schema) ? !AreSameUnordered(full, byDefault) : !AreSame(full, byDefault);
}

bool IsOwnDefault(const PropertyTree& full, const RecordSchema* own, std::string_view key, RecordInfos& infos)
{
    const auto field = own ? Proc::FindField(*own, key) : std::nullopt;
    return field && AreSame(full, infos.DefaultsOf(*own)[*field]);
}

void ReleaseCheck::Replace(Items& items)
{
    if (!m_areLosses)
    {
        return ReplaceFindings(items);
    }
    // What this library loses and changes itself is no loss where the release does just the same.
    std::map<std::pair<std::vector<PathStep>, FindingCode>, PropertyTree> own;
    for (const auto& item : items)
    {
        if (const Finding* finding = std::get_if<Finding>(item.get()); finding && !IsError(*finding))
        {
            own.emplace(std::pair(finding->path.OwnSteps(), finding->code), finding->becomes);
        }
    }
    ReplaceFindings(items);
    std::erase_if(items,
                  [&own](const std::unique_ptr<Findings::Item>& item)
                  {
                      const Finding* finding = std::get_if<Finding>(item.get());
                      if (!finding || IsError(*finding))
                      {
                          return false;
                      }
                      const auto found = own.find({finding->path.OwnSteps(), finding->code});
                      return found != own.end() && AreSame(found->second, finding->becomes);
                  });
}

void ReleaseCheck::ReplaceFindings(Items& items)
{
    const PathStep name{std::string(StoredKeys::NAME)};
    const PropertyTree* const id = ChildAt(m_node.tree, name);
    if (!id || !IsText(*id) || m_node.depth > DEEPEST)
    {
        return;
    }
    const std::string& text = id->getScalar().toString();
    const PhotoCore::EffectClass* const own = PhotoCore::FindEffectClass(text);
    const auto released = m_release.classes.find(text);
    const bool isKnown = released != m_release.classes.end();
    if (!isKnown && (own ? !IsOwn(*own) : true))
    {
        return; // a caller's, or known to neither
    }
    if (!isKnown || !released->second.isRegistered)
    {
        items.clear();
        Finding& finding = m_findings.Add(
            isKnown ? FindingCode::NotRegistered : FindingCode::UnknownEffect,
            Place{.parent = m_node.place, .key = StoredKeys::NAME}, id,
            Quoted(text) + (isKnown ? " cannot be made by its class id in release " : " is not known to release ") +
                m_release.name);
        finding.expected = "a class id";
    }
    else
    {
        CheckMap(m_node.tree->getMap(), *m_node.full, released->second.keys, own ? own->getSchema() : nullptr, *m_node.place);
    }
    std::erase_if(items,
                  [own](const std::unique_ptr<Findings::Item>& item)
                  {
                      const Finding* finding = std::get_if<Finding>(item.get());
                      return finding && (!own || IsOfTheManifest(finding->code));
                  });
    for (const auto& item : items)
    {
        if (EffectNode* inner = std::get_if<EffectNode>(item.get()))
        {
            inner->full = Find(*m_node.full, inner->place->StepsFrom(*m_node.place));
        }
    }
    auto& found = m_findings.Items();
    std::erase_if(found,
                  [](const std::unique_ptr<Findings::Item>& item)
                  {
                      const Finding* finding = std::get_if<Finding>(item.get());
                      return !finding || finding->code == FindingCode::ChangesOnWrite; // which this library's own check says
                  });
    items.insert(items.begin(), std::make_move_iterator(found.begin()), std::make_move_iterator(found.end()));
}

void ReleaseCheck::CheckMap(const PropertyTree::Map& map, const PropertyTree& full, const ReleaseRecord& record,
                            const RecordSchema* own, const Place& place)
{
    for (const ReleaseField& field : record.fields)
    {
        const Place at{.parent = &place, .key = field.key};
        const auto stored = map.find(field.key);
        const PropertyTree* const here = ChildAt(&full, PathStep(field.key));
        if (stored != map.end())
        {
            CheckValue(stored->second, here ? *here : stored->second, field.value, OwnValue(own, field.key), at);
        }
        else if (here && IsOtherFor(field.value, *here, field.byDefault))
        {
            AddOtherDefault(*here, field.byDefault, at);
        }
    }
    const bool isEffect = &place == m_node.place;
    for (const auto& [key, value] : map)
    {
        if (record.Find(key) || (isEffect && key == StoredKeys::NAME))
        {
            continue;
        }
        const PropertyTree* const here = ChildAt(&full, PathStep(std::string(key)));
        if (!here || !IsOwnDefault(*here, own, key, m_context.infos))
        {
            Finding& finding = m_findings.Add(FindingCode::UnknownKey, Place{.parent = &place, .key = key}, &value,
                                              "the key is not known to release " + m_release.name + ", so its value is lost");
            finding.mend = Mend::Remove;
        }
    }
}

void ReleaseCheck::CheckValue(const PropertyTree& value, const PropertyTree& full, const ReleaseValue& released,
                              const ValueSchema* own, const Place& place)
{
    if (released.schema.kind == ValueKind::Record)
    {
        if (!value.isMap())
        {
            return m_values.WrongKind(value, place, ExpectedOf(released.schema));
        }
        return CheckMap(value.getMap(), full, *released.record, OwnRecord(own), place);
    }
    if (released.IsSimple())
    {
        return m_values.Check(value, released.schema, place);
    }
    if (released.schema.kind == ValueKind::Effect)
    {
        const bool isEffectHere = own && own->kind == ValueKind::Effect; // then it is checked as one
        if (!isEffectHere && !value.isMap() && !value.isNull())
        {
            m_values.WrongKind(value, place, ExpectedOf(released.schema));
        }
        return;
    }
    if (!value.isList())
    {
        return m_values.AddIgnored(value, released.schema, place);
    }
    for (std::size_t index = 0; index != value.getList().size(); ++index)
    {
        const PropertyTree* const here = ChildAt(&full, PathStep(index));
        CheckValue(value.getList()[index], here ? *here : value.getList()[index], *released.element,
                   own ? own->element : nullptr, Place{.parent = &place, .key = {}, .index = index});
    }
}

void ReleaseCheck::AddOtherDefault(const PropertyTree& full, const PropertyTree& byDefault, const Place& place)
{
    Finding& finding = m_findings.Add(FindingCode::OtherDefault, place, nullptr,
                                      "the key is missing: it reads as " + Shown(full) + " here and as " + Shown(byDefault) +
                                          " in release " + m_release.name);
    finding.becomes = byDefault;
}

} // namespace Ombrel::Inspection
