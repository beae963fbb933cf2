#include "Inspection/Changes.h"

#include "Inspection/TreeEditor.h"
#include "Inspection/Values.h"
#include "Proc/Settings/StoredKeys.h"
#include "PropertyTree/Characters.h"
#include "PropertyTree/PropertyTreeOutput.h"

#include <algorithm>
#include <iterator>
#include <sstream>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace Ombrel::Inspection
{
namespace
{

// One line, cut if it is long.
std::string ShownWhole(const std::optional<PropertyTree>& value)
{
    if (!value)
    {
        return "nothing";
    }
    std::ostringstream out;
    out << *value;
    return CutText(std::move(out).str());
}

// An effect by its class id alone.
std::string ShownElement(const std::optional<PropertyTree>& element)
{
    const PropertyTree* name = ChildAt(PointerTo(element), PathStep(std::string(Proc::StoredKeys::NAME)));
    return name && IsText(*name) ? name->getScalar().toString() : ShownWhole(element);
}

// The path of a list's element with another index.
Path WithIndex(const Path& path, std::size_t index)
{
    const bool isShared = path.OwnSteps().empty();
    std::vector<PathStep> steps = isShared ? path.Steps() : path.OwnSteps();
    steps.back() = index;
    return {isShared ? nullptr : path.Start(), std::move(steps)};
}

std::size_t ElementIndex(const Path& path)
{
    const std::vector<PathStep> steps = path.Steps();
    return steps.empty() || !std::holds_alternative<std::size_t>(steps.back()) ? 0 : std::get<std::size_t>(steps.back());
}

void Invert(Change& change)
{
    std::swap(change.before, change.after);
    std::swap(change.stored.before, change.stored.after);
    if (change.kind == ChangeKind::Insert)
    {
        change.kind = ChangeKind::Remove;
    }
    else if (change.kind == ChangeKind::Remove)
    {
        change.kind = ChangeKind::Insert;
    }
    else if (change.kind == ChangeKind::Move)
    {
        const bool isPlain = change.stored.path == change.path;
        const std::size_t index = ElementIndex(change.path);
        change.path = WithIndex(change.path, std::exchange(change.target, index));
        change.stored.path = isPlain ? change.path : std::move(change.stored.path);
    }
}

// The texts of the paths that a path begins with, the shortest first, without its own.
std::vector<std::string> PathsAround(const std::string& text)
{
    std::vector<std::string> around;
    if (!text.empty())
    {
        around.emplace_back();
    }
    for (std::size_t end = text.find('/'); end != std::string::npos; end = text.find('/', end + 1))
    {
        around.push_back(text.substr(0, end));
    }
    return around;
}

bool ChangesNothing(const Change& change)
{
    return change.kind == ChangeKind::Value && AreSameOrMissing(PointerTo(change.before), PointerTo(change.after)) &&
           AreSameOrMissing(PointerTo(change.stored.before), PointerTo(change.stored.after));
}

// Collects changes. Among those since the last one of a list, no two are of values in each other, so that the later of two
// changes of one value may join the earlier one.
class Collector
{
public:
    void Add(const Change& change)
    {
        const std::string text = change.path.ToText();
        if (change.kind != ChangeKind::Value || IsAroundOrIn(text))
        {
            Begin();
        }
        if (change.kind != ChangeKind::Value)
        {
            m_changes.push_back(change);
            return;
        }
        if (const auto found = m_values.find(text); found != m_values.end() && Join(m_changes[found->second], change))
        {
            return;
        }
        m_values[text] = m_changes.size();
        for (std::string& around : PathsAround(text))
        {
            m_around.insert(std::move(around));
        }
        m_changes.push_back(change);
    }

    ChangeList Take()
    {
        std::erase_if(m_changes, &ChangesNothing);
        return std::move(m_changes);
    }

private:
    void Begin()
    {
        m_values.clear();
        m_around.clear();
    }

    bool IsAroundOrIn(const std::string& text) const
    {
        const std::vector<std::string> around = PathsAround(text);
        return m_around.contains(text) ||
               std::ranges::any_of(around, [this](const std::string& path) { return m_values.contains(path); });
    }

    // What is stored may be the whole around the value, for the first change in it.
    static bool Join(Change& first, const Change& second)
    {
        const std::vector<PathStep> outer = first.stored.path.Steps();
        const std::vector<PathStep> inner = second.stored.path.Steps();
        if (outer.size() > inner.size() || !std::equal(outer.begin(), outer.end(), inner.begin()))
        {
            return false;
        }
        if (outer.size() == inner.size())
        {
            first.stored.after = second.stored.after;
        }
        else if (!first.stored.after ||
                 !TreeEditor().Put(*first.stored.after, Steps(inner).subspan(outer.size()), second.stored.after))
        {
            return false;
        }
        first.after = second.after;
        return true;
    }

    ChangeList m_changes;
    std::unordered_map<std::string, std::size_t> m_values; // where the change of each path is
    std::unordered_set<std::string> m_around;              // the beginnings of these paths
};

} // namespace

std::string TextOf(const Change& change)
{
    const std::string path = change.path.ToText();
    const std::string start = path.empty() ? "" : path + ": ";
    switch (change.kind)
    {
    case ChangeKind::Insert:
        return start + "inserted " + ShownElement(change.after);
    case ChangeKind::Remove:
        return start + "removed " + ShownElement(change.before);
    case ChangeKind::Move:
        return start + "moved " + ShownElement(change.before) + " to " + std::to_string(change.target);
    case ChangeKind::Value:
        break;
    }
    return start + ShownWhole(change.before) + " -> " + ShownWhole(change.after);
}

ChangeList Inverse(ChangeList changes)
{
    std::ranges::reverse(changes);
    std::ranges::for_each(changes, &Invert);
    return changes;
}

ChangeList Joined(ChangeList first, const ChangeList& second)
{
    Collector collector;
    std::ranges::for_each(first, [&collector](const Change& change) { collector.Add(change); });
    std::ranges::for_each(second, [&collector](const Change& change) { collector.Add(change); });
    return collector.Take();
}

struct ConflictError::Values
{
    Path place;
    std::optional<PropertyTree> expected;
    std::optional<PropertyTree> found;
};

ConflictError::ConflictError(const Path& place, const std::optional<PropertyTree>& expected,
                             const std::optional<PropertyTree>& found)
    : std::runtime_error(place.ToText() + ": expected " + ShownWhole(expected) + ", found " + ShownWhole(found)),
      m_values(std::make_shared<const Values>(Values{place, expected, found}))
{
}

ConflictError::ConflictError(const ConflictError&) noexcept = default;
ConflictError& ConflictError::operator=(const ConflictError&) noexcept = default;
ConflictError::~ConflictError() = default;

const Path& ConflictError::Place() const noexcept
{
    return m_values->place;
}

const std::optional<PropertyTree>& ConflictError::Expected() const noexcept
{
    return m_values->expected;
}

const std::optional<PropertyTree>& ConflictError::Found() const noexcept
{
    return m_values->found;
}

} // namespace Ombrel::Inspection
