#include "Proc/EffectSettings/IEffectSettings.h"

#include "Proc/Settings/Settings.h"

#include <algorithm>

namespace Ombrel::PhotoCore
{
namespace
{

template <class Effect> std::shared_ptr<Effect> FindIn(const std::vector<std::shared_ptr<Effect>>& list, const std::string& id)
{
    const auto found = std::ranges::find_if(list, [&id](const std::shared_ptr<Effect>& effect)
                                            { return effect && effect->GetEffectSettings().GetClassId() == id; });
    return found == list.end() ? nullptr : *found;
}

} // namespace

bool IEffectSettings::Equal(const ConstList& a, const ConstList& b)
{
    return std::ranges::equal(a, b, &IEffectSettings::Equals);
}

bool IEffectSettings::Equals(const std::shared_ptr<const IEffectSettings>& a, const std::shared_ptr<const IEffectSettings>& b)
{
    return a == b || (a && b && *a == *b);
}

std::shared_ptr<const IEffectSettings> IEffectSettings::Find(const ConstList& list, const std::string& id)
{
    return FindIn(list, id);
}

std::shared_ptr<IEffectSettings> IEffectSettings::Find(const List& list, const std::string& id)
{
    return FindIn(list, id);
}

IEffectSettings::ConstList IEffectSettings::ToConstList(const List& list)
{
    return {list.begin(), list.end()};
}

} // namespace Ombrel::PhotoCore
