#include "EffectReader.h"

#include "Exception/Exception.h"
#include "Proc/EffectSettings/EffectSettings.h"
#include "Proc/Settings/StoredKeys.h"
#include "Values.h"

#include <utility>

namespace Ombrel::EffectsTool
{
namespace
{

const std::string NAME{Proc::StoredKeys::NAME};

// Throws what the library throws.
EffectPtr EffectOf(const PropertyTree& element)
{
    EffectPtr effect;
    PhotoCore::EffectSettings::DeserializePtr(element, effect);
    return effect;
}

// Why the library refuses the element, if it does.
std::optional<std::string> ReasonAgainst(const PropertyTree& element)
{
    try
    {
        EffectOf(element);
        return std::nullopt;
    }
    catch (const std::exception& error)
    {
        return ReasonOf(error);
    }
}

// The map with its class id only. No effect within an effect can be read without it.
PropertyTree Bare(const PropertyTree& map)
{
    PropertyTree bare;
    bare.convertToMap();
    if (map.contains(NAME))
    {
        bare[NAME] = map[NAME];
    }
    return bare;
}

// The map or list with `child` at `step` as its only child.
PropertyTree WithOnly(const PropertyTree& container, const std::string& step, PropertyTree child)
{
    PropertyTree result;
    if (container.isList())
    {
        result.append(std::move(child));
    }
    else
    {
        result = Bare(container);
        result[step] = std::move(child);
    }
    return result;
}

// The element with `value` at `place` and nothing else.
PropertyTree ElementOf(const PropertyTree& element, PathView place, PropertyTree value)
{
    for (std::size_t length = place.size(); length > 0; --length)
    {
        value = WithOnly(At(element, place.first(length - 1)), place[length - 1], std::move(value));
    }
    return value;
}

// The fault of a map that is refused even without its other entries: its class id.
Refusal RefusedName(const PropertyTree& map, const Path& place, const std::string& reason)
{
    if (!map.contains(NAME))
    {
        return {place, "no \"" + NAME + "\", expected the class id of an effect"};
    }
    if (IsString(map[NAME]))
    {
        return {Below(place, NAME), reason + " Expected a class id that \"ombrel-effects list\" shows as registered"};
    }
    return {Below(place, NAME), reason};
}

// The first child of the value at `refusal.place` that is refused when it is the only child. Nothing if the library refuses the
// value itself.
std::optional<Refusal> NextRefusal(const PropertyTree& element, const Refusal& refusal)
{
    const PropertyTree& value = At(element, refusal.place);
    if (value.isMap())
    {
        if (const auto reason = ReasonAgainst(ElementOf(element, refusal.place, Bare(value))))
        {
            return RefusedName(value, refusal.place, *reason);
        }
    }
    for (const std::string& step : StepsOf(value))
    {
        const PropertyTree alone = WithOnly(value, step, At(value, PathView(&step, 1)));
        if (const auto reason = ReasonAgainst(ElementOf(element, refusal.place, alone)))
        {
            return Refusal{Below(refusal.place, step), *reason};
        }
    }
    return std::nullopt;
}

} // namespace

std::optional<EffectPtr> TryReadEffect(const PropertyTree& element)
{
    try
    {
        return EffectOf(element);
    }
    catch (const std::exception&)
    {
        return std::nullopt;
    }
}

std::string ReasonOf(const std::exception& error)
{
    if (const auto* failure = dynamic_cast<const Exception*>(&error))
    {
        const std::string* description = boost::get_error_info<ErrorDescription>(*failure);
        return description ? *description : "unknown failure";
    }
    return error.what();
}

std::variant<EffectPtr, Refusal> ReadEffect(const PropertyTree& element)
{
    try
    {
        return EffectOf(element);
    }
    catch (const std::exception& error)
    {
        Refusal refusal{{}, ReasonOf(error)};
        for (auto next = NextRefusal(element, refusal); next; next = NextRefusal(element, refusal))
        {
            const bool isFinal = next->place == refusal.place;
            refusal = std::move(*next);
            if (isFinal)
            {
                break;
            }
        }
        return refusal;
    }
}

} // namespace Ombrel::EffectsTool
