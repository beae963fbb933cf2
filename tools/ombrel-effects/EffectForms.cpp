#include "EffectForms.h"

#include "EffectReader.h"
#include "Proc/EffectSettings/EffectSettings.h"
#include "Proc/Settings/StoredKeys.h"

#include <algorithm>

namespace Ombrel::EffectsTool
{

const PhotoCore::EffectClass* FindClass(std::string_view classId)
{
    const auto classes = PhotoCore::EffectClasses();
    const auto found = std::ranges::find(classes, classId, &PhotoCore::EffectClass::classId);
    return found == classes.end() ? nullptr : &*found;
}

const char* InputsOf(const PhotoCore::EffectClass& effectClass)
{
    using InputType = PhotoCore::IEffectSettings::InputType;
    switch (effectClass.create()->GetInputType())
    {
    case InputType::One:
        return "1";
    case InputType::Two:
        return "2";
    case InputType::Var:
        return "var";
    }
    return "?";
}

PropertyTree StoredForm(const std::shared_ptr<const PhotoCore::IEffectSettings>& effect)
{
    PropertyTree tree;
    PhotoCore::EffectSettings::SerializePtr(tree, effect);
    return tree;
}

PropertyTree FullForm(const std::shared_ptr<const PhotoCore::IEffectSettings>& effect)
{
    PropertyTree tree = StoredForm(effect);
    if (const auto access = effect ? effect->GetPropertyAccess() : nullptr)
    {
        for (const std::string& key : access->ListProperties())
        {
            tree[key] = access->GetProperty(key);
        }
    }
    return tree;
}

PropertyTree WithDefaults(const PropertyTree& map)
{
    if (map.contains(Proc::StoredKeys::CLASS_ID))
    {
        if (const auto effect = TryReadEffect(map))
        {
            return FullForm(*effect);
        }
    }
    return map;
}

} // namespace Ombrel::EffectsTool
