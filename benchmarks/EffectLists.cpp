#include "EffectLists.h"

#include "Proc/EffectSettings/EffectSettings.h"

#include <memory>

namespace Ombrel::Benchmarks
{

using PhotoCore::EffectSettings;
using PhotoCore::IEffectSettings;

PropertyTree WriteEffects(const IEffectSettings::List& effects)
{
    PropertyTree tree;
    tree.convertToList();
    tree.getList().reserve(effects.size());
    for (const std::shared_ptr<IEffectSettings>& effect : effects)
    {
        EffectSettings::SerializePtr(tree.getList().emplace_back(), effect);
    }
    return tree;
}

IEffectSettings::List ReadEffects(const PropertyTree& tree)
{
    IEffectSettings::List effects;
    effects.reserve(tree.getList().size());
    for (const PropertyTree& element : tree.getList())
    {
        EffectSettings::DeserializePtr(element, effects.emplace_back());
    }
    return effects;
}

} // namespace Ombrel::Benchmarks
