#include "UnknownKeys.h"

#include "EffectForms.h"
#include "Proc/Settings/StoredKeys.h"
#include "PropertyTreeJson/PropertyTreeJson.h"
#include "Values.h"

#include <algorithm>
#include <utility>

namespace Ombrel::EffectsTool
{
namespace
{

// Each kind of property refuses or is changed by at least one of these: a map is not a scalar, 5 is not a name, and so on.
std::vector<PropertyTree> TrialValues()
{
    PropertyTree map;
    map.convertToMap();
    PropertyTree numbers;
    numbers.append(5);
    PropertyTree maps;
    maps.append(map);
    return {map, 5, numbers, maps, true, "x", PropertyTree()};
}

// An effect as text. Trees cannot be compared for this: one with a NaN is not equal to itself.
std::string FormOf(const EffectPtr& effect)
{
    return WriteJson(StoredForm(effect), {.nonFiniteAsText = true});
}

// The same for an element, if the library reads it.
std::optional<std::string> FormOf(const PropertyTree& element)
{
    const auto effect = TryReadEffect(element);
    return effect ? std::optional(FormOf(*effect)) : std::nullopt;
}

std::string ClassOf(const PropertyTree& map)
{
    const PropertyTree* name = FindChild(map, std::string(Proc::StoredKeys::NAME));
    return name && IsString(*name) ? name->getScalar().toString() : std::string();
}

} // namespace

std::vector<Path> UnknownKeys::In(const PropertyTree& element, const EffectPtr& effect)
{
    const PropertyTree written = StoredForm(effect);
    m_element = element;
    m_form = FormOf(effect);
    Visit(element, &written, {}, "");
    return std::exchange(m_found, {});
}

void UnknownKeys::Visit(const PropertyTree& given, const PropertyTree* written, const Path& place, const std::string& pattern)
{
    const bool isMap = given.isMap();
    const std::string around = isMap ? pattern + "{" + ClassOf(given) + "}" : pattern;
    for (const std::string& step : StepsOf(given))
    {
        const Path below = Below(place, step);
        const std::string belowPattern = around + "/" + (isMap ? step : "*");
        const PropertyTree* writtenChild = written ? FindChild(*written, step) : nullptr;
        if (isMap && !writtenChild && !IsKnown(below, belowPattern))
        {
            m_found.push_back(below);
            continue;
        }
        Visit(At(given, PathView(&step, 1)), writtenChild, below, belowPattern);
    }
}

bool UnknownKeys::IsKnown(const Path& place, const std::string& pattern)
{
    const auto [entry, isNew] = m_known.try_emplace(pattern, false);
    if (isNew)
    {
        entry->second = DoesAnyValueMatter(place);
    }
    return entry->second;
}

bool UnknownKeys::DoesAnyValueMatter(const Path& place)
{
    PropertyTree& value = At(m_element, place);
    PropertyTree kept = std::exchange(value, {});
    const std::vector<PropertyTree> trials = TrialValues();
    const bool matters = std::ranges::any_of(trials,
                                             [&](const PropertyTree& trial)
                                             {
                                                 value = trial;
                                                 return FormOf(m_element) != m_form;
                                             });
    value = std::move(kept);
    return matters;
}

} // namespace Ombrel::EffectsTool
