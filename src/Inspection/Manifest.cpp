#include "Inspection/Describe.h"
#include "Inspection/Release.h"
#include "Proc/EffectSettings/EffectSettingsExport.h"

#include <map>
#include <optional>
#include <string>
#include <utility>

namespace Ombrel::Inspection
{
namespace
{

using PhotoCore::IEffectSettings;

class ManifestWriter
{
public:
    PropertyTree Run(std::string_view release)
    {
        PropertyTree classes;
        classes.makeList();
        for (const PhotoCore::EffectClass& effectClass : PhotoCore::EffectClasses())
        {
            classes.append(ClassOf(*Describe(effectClass.classId)));
        }
        PropertyTree manifest;
        manifest["release"] = std::string(release);
        manifest["classes"] = std::move(classes);
        manifest["records"] = std::move(m_records);
        return manifest;
    }

    ManifestWriter() { m_records.makeMap(); }

private:
    PropertyTree ClassOf(const EffectDescription& effect)
    {
        using InputType = IEffectSettings::InputType;
        PropertyTree tree;
        tree["id"] = effect.classId;
        tree["class"] = effect.className;
        tree["inputs"] = effect.inputs == InputType::One ? "1" : effect.inputs == InputType::Two ? "2" : "var";
        tree["registered"] = effect.isRegistered;
        m_effect = &effect;
        m_names.clear();
        tree["keys"] = FieldsOf(effect.fields);
        return tree;
    }

    PropertyTree FieldsOf(const std::vector<FieldDescription>& fields)
    {
        PropertyTree list;
        list.makeList();
        for (const FieldDescription& field : fields)
        {
            PropertyTree tree = ValueOf(field.value);
            tree["key"] = field.key;
            tree["default"] = field.defaultValue;
            Mark(tree, "compared", field.isCompared.value_or(false));
            Mark(tree, "computed", field.isComputed);
            Mark(tree, "alwaysWritten", field.isAlwaysWritten);
            list.append(std::move(tree));
        }
        return list;
    }

    PropertyTree ValueOf(const ValueDescription& value)
    {
        PropertyTree tree;
        tree["kind"] = KindOf(value);
        if (!value.record.empty())
        {
            tree["record"] = NameOf(value.record);
        }
        if (!value.element.empty())
        {
            tree["element"] = ValueOf(value.element.front());
        }
        if (value.form == ValueForm::Name)
        {
            PropertyTree& names = tree["names"];
            names.makeList();
            for (const DescribedName& name : value.names)
            {
                PropertyTree row;
                row["name"] = name.name;
                row["number"] = name.number;
                names.append(std::move(row));
            }
            tree["fallback"] = value.fallback;
            Mark(tree, "takesNumbers", value.takesNumbers);
        }
        return tree;
    }

    // Records that are alike in all effects stand once. They may differ in what comparisons look at.
    std::string NameOf(const std::string& record)
    {
        if (const auto known = m_names.find(record); known != m_names.end())
        {
            return known->second;
        }
        const PropertyTree fields = FieldsOf(m_effect->FindRecord(record)->fields);
        std::string name = record;
        for (int number = 2; m_records.contains(name) && !(m_records[name] == fields); ++number)
        {
            name = record + std::to_string(number);
        }
        m_records[name] = fields;
        return m_names[record] = name;
    }

    // What is "list of ..." in descriptions has an element here.
    static std::string KindOf(const ValueDescription& value)
    {
        return value.form == ValueForm::List     ? "list"
               : value.form == ValueForm::Set    ? "set"
               : value.form == ValueForm::Record ? "record"
                                                 : TextOf(value);
    }

    static void Mark(PropertyTree& tree, const char* key, bool isSo)
    {
        if (isSo)
        {
            tree[key] = true;
        }
    }

    PropertyTree m_records;
    const EffectDescription* m_effect = nullptr;
    std::map<std::string, std::string> m_names; // of the effect's records in the manifest
};

} // namespace

PropertyTree Manifest(std::string_view release)
{
    return ManifestWriter().Run(release);
}

} // namespace Ombrel::Inspection
