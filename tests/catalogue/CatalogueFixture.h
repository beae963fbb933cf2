#ifndef OMBREL_TESTS_CATALOGUE_CATALOGUE_FIXTURE_H
#define OMBREL_TESTS_CATALOGUE_CATALOGUE_FIXTURE_H

#include "Proc/EffectSettings/EffectSettings.h"
#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "Proc/Settings/Settings.h"
#include "catalogue/Catalogue.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <typeindex>
#include <typeinfo>

namespace Catalogue
{

using Ombrel::PropertyTree;
using Ombrel::PhotoCore::EffectClass;
using Ombrel::PhotoCore::EffectClasses;
using Ombrel::PhotoCore::EffectSettings;
using Ombrel::PhotoCore::HelperSettings;
using Ombrel::PhotoCore::IEffectSettings;
using Ombrel::PhotoCore::Registration;
using Support::Map;
using Support::StoredForm;

inline const EffectClass* FindClass(std::string_view className)
{
    const auto classes = EffectClasses();
    const auto found = std::ranges::find(classes, className, &EffectClass::className);
    return found == classes.end() ? nullptr : &*found;
}

inline std::type_index TypeOf(const std::shared_ptr<IEffectSettings>& effect)
{
    const IEffectSettings& object = *effect;
    return typeid(object);
}
/// One row of the catalogue; a rule that holds for all classes is a test of it.
class CatalogueTest : public testing::TestWithParam<Effect>
{
protected:
    static std::shared_ptr<IEffectSettings> Make()
    {
        const EffectClass* effectClass = FindClass(GetParam().className);
        if (!effectClass)
        {
            throw std::logic_error("the library has no class " + GetParam().className);
        }
        return effectClass->create();
    }

    // What stands under a key, in full stored form. A class without property access shows only what its tree does not leave
    // out.
    static PropertyTree Get(const IEffectSettings& effect, const std::string& key)
    {
        if (const auto access = effect.GetPropertyAccess())
        {
            return access->GetProperty(key);
        }
        const Field& field = *std::ranges::find(GetParam().fields, key, &Field::key);
        const PropertyTree tree = StoredForm(effect);
        if (!tree.contains(key) || field.kind != Kind::Record)
        {
            return tree.contains(key) ? tree[key] : field.defaultValue;
        }
        PropertyTree full = DefaultForm(field.nested);
        for (const auto& [nestedKey, child] : tree[key].getMap())
        {
            full[nestedKey] = child;
        }
        return full;
    }

    // What a default object is stored as.
    static PropertyTree DefaultTree()
    {
        PropertyTree tree = Map({});
        for (const Field& field : GetParam().fields)
        {
            if (field.isAlwaysWritten)
            {
                tree[field.key] = Map({});
            }
        }
        return tree;
    }

    // Without property access the other keys are reset.
    static void Set(IEffectSettings& effect, const std::string& key, const PropertyTree& value)
    {
        if (const auto access = effect.GetPropertyAccess())
        {
            access->SetProperty(key, value);
            return;
        }
        effect.Deserialize(Map({{key, value}}));
    }

    // A value that comes back as it is when all keys are set together.
    static PropertyTree Sample(const Field& field)
    {
        const bool isTarget =
            std::ranges::any_of(GetParam().fields, [&field](const Field& other) { return other.target == field.key; });
        return field.isScaled || isTarget || !field.target.empty() ? field.defaultValue : field.sample;
    }

    // A map in which every key of the effect stands with its sample.
    static PropertyTree SampleForm()
    {
        PropertyTree tree = Map({});
        for (const Field& field : GetParam().fields)
        {
            tree[field.key] = Sample(field);
        }
        return tree;
    }
};

} // namespace Catalogue

#endif
