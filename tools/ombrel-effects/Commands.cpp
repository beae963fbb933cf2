#include "Commands.h"

#include "EffectForms.h"
#include "Proc/Settings/StoredKeys.h"
#include "Property.h"
#include "UnknownKeys.h"
#include "Values.h"

#include <algorithm>
#include <string_view>

namespace Ombrel::EffectsTool
{
namespace
{

using PhotoCore::EffectClass;

std::string Padded(std::string_view text, std::size_t width)
{
    return std::string(text) + std::string(width - text.size() + 2, ' ');
}

bool IsRegistered(const EffectClass& effectClass)
{
    return effectClass.registration != PhotoCore::Registration::None;
}

std::string Listing(const EffectPtr& effect, const Path& path)
{
    const std::string head = path.empty() ? "" : PathText(path) + "  ";
    if (!effect)
    {
        return head + "null\n";
    }
    const EffectClass* effectClass = FindClass(effect->GetClassId());
    std::string text =
        head + effect->GetClassId() + (effectClass ? "  " + std::string(effectClass->className) : std::string()) + '\n';
    const PropertyTree stored = StoredForm(effect);
    const PropertyTree full = FullForm(effect);
    for (const auto& [key, value] : full.getMap())
    {
        if (key != Proc::StoredKeys::NAME)
        {
            // A property with its default is not in the stored form.
            text += (stored.contains(key) ? "  * " : "    ") + key + " = " + Shown(value) + '\n';
        }
    }
    return text;
}

} // namespace

Outcome ListClasses()
{
    const auto classes = PhotoCore::EffectClasses();
    std::size_t nameWidth = 0;
    std::size_t idWidth = 0;
    for (const EffectClass& effectClass : classes)
    {
        nameWidth = std::max(nameWidth, effectClass.className.size());
        idWidth = std::max(idWidth, std::string_view(effectClass.classId).size());
    }
    std::string text;
    for (const EffectClass& effectClass : classes)
    {
        text += Padded(effectClass.className, nameWidth) + Padded(effectClass.classId, idWidth) +
                Padded(InputsOf(effectClass), 3) + (IsRegistered(effectClass) ? "" : "not ") + "registered\n";
    }
    return {text, {}, ExitCode::Fine};
}

Outcome NewEffect(const std::string& classId, bool nonFinite)
{
    const EffectClass* effectClass = FindClass(classId);
    if (!effectClass)
    {
        throw ToolError(ExitCode::NotAsAsked,
                        PathText(Path{classId}) + ": no such class id, expected one that \"ombrel-effects list\" shows");
    }
    Outcome outcome{TextOf(FullForm(effectClass->create()), classId + ":", nonFinite), {}, ExitCode::Fine};
    if (!IsRegistered(*effectClass))
    {
        outcome.complaints.push_back(classId + ": not registered, so a stored effect of this class cannot be read back");
    }
    return outcome;
}

Outcome ShowEffects(const Document& document)
{
    Outcome outcome{"", {}, ExitCode::Fine};
    for (std::size_t index = 0; index < document.size(); ++index)
    {
        try
        {
            *outcome.text += Listing(document.Read(index), document.PathOf(index));
        }
        catch (const ToolError& error)
        {
            outcome.complaints.emplace_back(error.what());
            outcome.code = error.code();
        }
    }
    return outcome;
}

Outcome GetValue(const Document& document, const Path& path)
{
    const Document::Target target = document.Locate(path);
    if (target.rest.empty())
    {
        return {document.Text(FullForm(document.Read(target.index))), {}, ExitCode::Fine};
    }
    return {document.Text(Property(document, target).Value()), {}, ExitCode::Fine};
}

Outcome Normalise(Document document)
{
    Outcome outcome;
    UnknownKeys unknownKeys;
    for (std::size_t index = 0; index < document.size(); ++index)
    {
        const EffectPtr effect = document.Read(index);
        for (const Path& place : unknownKeys.In(document[index], effect))
        {
            outcome.complaints.push_back(document.Where(index, place) + "unknown key, dropped");
            outcome.code = ExitCode::NotAsAsked;
        }
        document[index] = StoredForm(effect);
    }
    outcome.text = document.Text();
    return outcome;
}

} // namespace Ombrel::EffectsTool
