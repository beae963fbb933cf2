#include "EffectForms.h"

#include "Proc/EffectSettings/EffectSettings.h"

namespace Ombrel::EffectsTool
{

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

const char* RegistrationText(PhotoCore::Registration registration)
{
    using PhotoCore::Registration;
    switch (registration)
    {
    case Registration::StartUpList:
        return "registered at start-up";
    case Registration::Factory:
        return "registered by `RegisterFactory`";
    case Registration::None:
        break;
    }
    return "not registered";
}

const char* AccessText(const PhotoCore::EffectClass& effectClass)
{
    const auto access = effectClass.create()->GetPropertyAccess();
    if (!access)
    {
        return "without property access";
    }
    return access->ListProperties().empty() ? "with a property access that lists nothing" : "with property access";
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

} // namespace Ombrel::EffectsTool
