#include "Commands.h"

#include "Property.h"
#include "PropertyTreeJson/PropertyTreeJson.h"
#include "UnknownKeys.h"
#include "Values.h"

namespace Ombrel::EffectsTool
{
namespace
{

// A string needs no quotes, so that names are easy to type. Any other value is JSON.
PropertyTree ParseValue(const std::string& text, const Property& property, bool nonFinite)
{
    const PropertyTree& current = property.Value();
    if (IsString(current))
    {
        PropertyTree string(text);
        TextOf(string, property.Where() + "the value", nonFinite); // throws if it is not UTF-8
        return string;
    }
    try
    {
        return ReadJson(text, {.nonFiniteAsText = nonFinite});
    }
    catch (const JsonError& error)
    {
        throw ToolError(ExitCode::BadInput, property.Where() + "the value is not JSON: " + error.what() + "; expected " +
                                                (current.isNull() ? "any value" : KindOf(current)));
    }
}

void ComplainIfOther(Outcome& outcome, const Property& property, const PropertyTree& given)
{
    const PropertyTree* stored = property.FindValue();
    if (!stored || !IsStoredAs(given, *stored))
    {
        outcome.complaints.push_back(property.Where() + "given " + ShownInBrief(given) + ", stored " +
                                     (stored ? ShownInBrief(*stored) : "nothing"));
    }
}

// The library writes the addressed key again. This drops the unknown keys below it.
void ComplainOfLostKeys(Outcome& outcome, const Document& document, const Document::Target& target, const EffectPtr& effect)
{
    for (const Path& place : UnknownKeys().In(document[target.index], effect))
    {
        if (place.front() == target.rest.front())
        {
            outcome.complaints.push_back(document.Where(target.index, place) + "unknown key, dropped");
        }
    }
}

} // namespace

Outcome SetValue(Document document, const Path& path, const std::string& text, bool isForced)
{
    const Document::Target target = document.Locate(path);
    if (target.rest.empty())
    {
        throw ToolError(ExitCode::UsageOrFile,
                        document.Where(target.index) + "an effect as a whole cannot be set, expected a property of it");
    }
    Property property(document, target);
    const PropertyTree given = ParseValue(text, property, document.nonFinite());
    Outcome outcome;
    ComplainOfLostKeys(outcome, document, target, property.effect());
    property.Set(given);
    ComplainIfOther(outcome, property, given);
    property.StoreIn(document[target.index]);
    outcome.code = outcome.complaints.empty() ? ExitCode::Fine : ExitCode::NotAsAsked;
    if (isForced || outcome.code == ExitCode::Fine)
    {
        outcome.text = document.Text();
    }
    return outcome;
}

} // namespace Ombrel::EffectsTool
