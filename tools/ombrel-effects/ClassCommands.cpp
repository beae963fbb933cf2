#include "ClassCommands.h"

#include "EffectForms.h"
#include "Inspection/JsonSchema.h"
#include "Inspection/Nearest.h"
#include "PropertyPath.h"

#include <algorithm>
#include <cctype>
#include <string_view>
#include <vector>

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

bool Contains(std::string_view text, std::string_view part)
{
    const auto areSame = [](unsigned char a, unsigned char b) { return std::tolower(a) == std::tolower(b); };
    return std::search(text.begin(), text.end(), part.begin(), part.end(), areSame) != text.end() || part.empty();
}

std::string TableOf(const std::vector<const EffectClass*>& classes)
{
    std::size_t nameWidth = 0;
    std::size_t idWidth = 0;
    for (const EffectClass* effectClass : classes)
    {
        nameWidth = std::max(nameWidth, effectClass->className.size());
        idWidth = std::max(idWidth, std::string_view(effectClass->classId).size());
    }
    std::string text;
    for (const EffectClass* effectClass : classes)
    {
        text += Padded(effectClass->className, nameWidth) + Padded(effectClass->classId, idWidth) +
                Padded(InputsOf(*effectClass), 3) + (IsRegistered(*effectClass) ? "" : "not ") + "registered\n";
    }
    return text;
}

} // namespace

void ThrowUnknownClass(const std::string& classId)
{
    Inspection::NearestName nearest(classId);
    for (const EffectClass& effectClass : PhotoCore::EffectClasses())
    {
        nearest.Try(effectClass.classId);
    }
    throw ToolError(ExitCode::Usage, PathText(Path{classId}) + ": no such class id, " +
                                         (nearest.Get().empty() ? "expected one that \"ombrel-effects list\" shows"
                                                                : "did you mean " + nearest.Get() + "?"));
}

Report ListClasses(const std::string& pattern, bool isJson)
{
    std::vector<const EffectClass*> classes;
    for (const EffectClass& effectClass : PhotoCore::EffectClasses())
    {
        if (Contains(effectClass.className, pattern) || Contains(effectClass.classId, pattern))
        {
            classes.push_back(&effectClass);
        }
    }
    if (classes.empty())
    {
        throw ToolError(ExitCode::Usage, PathText(Path{pattern}) + ": no class has this in its name or id");
    }
    Report report;
    if (!isJson)
    {
        report.out = TableOf(classes);
        return report;
    }
    PropertyTree list;
    list.convertToList();
    for (const EffectClass* effectClass : classes)
    {
        PropertyTree json;
        json["class"] = std::string(effectClass->className);
        json["id"] = effectClass->classId;
        json["inputs"] = InputsOf(*effectClass);
        json["registered"] = IsRegistered(*effectClass);
        list.append(std::move(json));
    }
    report.out = Indented(list, "list:", false);
    return report;
}

Report NewEffect(const std::string& classId, bool nonFinite)
{
    const EffectClass* effectClass = PhotoCore::FindEffectClass(classId);
    if (!effectClass)
    {
        ThrowUnknownClass(classId);
    }
    Report report;
    report.out = Indented(FullForm(effectClass->create()), classId + ":", nonFinite);
    if (!IsRegistered(*effectClass))
    {
        report.complaints.push_back(classId + ": not registered, so a stored effect of this class cannot be read back");
    }
    return report;
}

Report WriteSchema(const std::string& classId, bool allowUnknownKeys, bool nonFinite)
{
    const Inspection::JsonSchemaOptions options{.allowUnknownKeys = allowUnknownKeys, .nonFiniteAsText = nonFinite};
    Report report;
    if (classId.empty())
    {
        report.out = Indented(Inspection::JsonSchema(options), "schema:", false);
        return report;
    }
    if (!PhotoCore::FindEffectClass(classId))
    {
        ThrowUnknownClass(classId);
    }
    const auto schema = Inspection::JsonSchema(classId, options);
    if (!schema)
    {
        throw ToolError(ExitCode::Usage, classId + ": not registered, so no stored effect of this class can be read");
    }
    report.out = Indented(*schema, "schema:", false);
    return report;
}

} // namespace Ombrel::EffectsTool
