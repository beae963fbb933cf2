#include "ClassCommands.h"
#include "EffectForms.h"
#include "Inspection/Describe.h"
#include "PropertyPath.h"
#include "Values.h"

#include <algorithm>
#include <vector>

namespace Ombrel::EffectsTool
{
namespace
{

using Inspection::EffectDescription;
using Inspection::FieldDescription;
using Inspection::ValueDescription;

const char* TextOf(PhotoCore::IEffectSettings::InputType inputs)
{
    using InputType = PhotoCore::IEffectSettings::InputType;
    return inputs == InputType::One ? "1" : inputs == InputType::Two ? "2" : "var";
}

// The names of the enumerations in a value, at any depth of its lists.
const ValueDescription& Leaf(const ValueDescription& value)
{
    return value.element.empty() ? value : Leaf(value.element.front());
}

std::string TraitsOf(const FieldDescription& field)
{
    std::string text;
    const auto add = [&text](bool isSo, const char* trait) { text += isSo ? std::string(", ") + trait : std::string(); };
    add(field.isCompared == false, "not compared");
    add(field.isAlwaysWritten, "always written");
    add(field.isComputed, "computed on writing");
    return text;
}

std::string LinesOf(const std::vector<FieldDescription>& fields)
{
    std::size_t width = 0;
    for (const FieldDescription& field : fields)
    {
        width = std::max(width, field.key.size());
    }
    std::string text;
    for (const FieldDescription& field : fields)
    {
        text += "  " + field.key + std::string(width - field.key.size() + 2, ' ') + TextOf(field.value) + " = " +
                Shown(field.defaultValue) + TraitsOf(field) + "\n";
        const ValueDescription& leaf = Leaf(field.value);
        for (const Inspection::DescribedName& name : leaf.names)
        {
            text += "  " + std::string(width + 4, ' ') + name.name + " = " + std::to_string(name.number) +
                    (name.number == leaf.fallback ? ", for unknown names" : "") + "\n";
        }
    }
    return text;
}

std::string LinesOf(const std::vector<Inspection::KeylessMember>& members)
{
    std::string text;
    for (const Inspection::KeylessMember& member : members)
    {
        text += "  " + member.member + ": " + member.type + " = " + member.defaultValue +
                (member.isCompared ? "" : ", not compared") + ", never stored\n";
    }
    return text;
}

std::string PageOf(const EffectDescription& effect)
{
    std::string text = effect.classId + "  " + effect.className + "\n";
    text += std::string("  ") + (effect.inputs ? TextOf(*effect.inputs) : "?") + " input" +
            (effect.inputs == PhotoCore::IEffectSettings::InputType::One ? "" : "s") +
            (effect.isRegistered ? ", registered" : ", not registered") + (effect.isAdditive ? ", can be accumulated" : "") +
            (effect.hasPropertyAccess ? "" : ", without property access") + "\n\n";
    text += LinesOf(effect.fields) + LinesOf(effect.members);
    for (const Inspection::RecordDescription& record : effect.records)
    {
        text += "\n" + record.name + "\n" + LinesOf(record.fields) + LinesOf(record.members);
    }
    return text;
}

PropertyTree JsonOf(const ValueDescription& value)
{
    PropertyTree json;
    json["type"] = TextOf(value);
    if (!value.record.empty())
    {
        json["record"] = value.record;
    }
    if (!value.element.empty())
    {
        json["element"] = JsonOf(value.element.front());
    }
    if (!value.names.empty())
    {
        for (const Inspection::DescribedName& name : value.names)
        {
            json["names"][name.name] = name.number;
        }
        json["fallback"] = value.fallback;
        json["takesNumbers"] = value.takesNumbers;
    }
    return json;
}

PropertyTree JsonOf(const std::vector<FieldDescription>& fields)
{
    PropertyTree list;
    list.convertToList();
    for (const FieldDescription& field : fields)
    {
        PropertyTree json = JsonOf(field.value);
        json["key"] = field.key;
        json["default"] = field.defaultValue;
        json["compared"] = field.isCompared ? PropertyTree(*field.isCompared) : PropertyTree();
        json["alwaysWritten"] = field.isAlwaysWritten;
        json["computed"] = field.isComputed;
        list.append(std::move(json));
    }
    return list;
}

PropertyTree JsonOf(const std::vector<Inspection::KeylessMember>& members)
{
    PropertyTree list;
    list.convertToList();
    for (const Inspection::KeylessMember& member : members)
    {
        PropertyTree json;
        json["member"] = member.member;
        json["type"] = member.type;
        json["default"] = member.defaultValue;
        json["compared"] = member.isCompared;
        list.append(std::move(json));
    }
    return list;
}

PropertyTree JsonOf(const EffectDescription& effect)
{
    PropertyTree json;
    json["id"] = effect.classId;
    json["class"] = effect.className;
    json["inputs"] = effect.inputs ? PropertyTree(TextOf(*effect.inputs)) : PropertyTree();
    json["registered"] = effect.isRegistered;
    json["additive"] = effect.isAdditive;
    json["propertyAccess"] = effect.hasPropertyAccess;
    json["keys"] = JsonOf(effect.fields);
    json["members"] = JsonOf(effect.members);
    json["records"].convertToMap();
    for (const Inspection::RecordDescription& record : effect.records)
    {
        json["records"][record.name]["keys"] = JsonOf(record.fields);
        json["records"][record.name]["members"] = JsonOf(record.members);
    }
    return json;
}

} // namespace

Report DescribeClass(const std::string& classId, bool isJson)
{
    const std::optional<EffectDescription> effect = Inspection::Describe(classId);
    if (!effect)
    {
        ThrowUnknownClass(classId);
    }
    Report report;
    report.out = isJson ? Indented(JsonOf(*effect), classId + ":", true) : PageOf(*effect);
    return report;
}

} // namespace Ombrel::EffectsTool
