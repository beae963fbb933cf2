#ifndef OMBREL_TESTS_EFFECTS_TREE_OF_H
#define OMBREL_TESTS_EFFECTS_TREE_OF_H

#include "Proc/EffectSettings/IEffectSettings.h"
#include "PropertyTree/PropertyTree.h"

inline Ombrel::PropertyTree TreeOf(const Ombrel::PhotoCore::IEffectSettings& effect)
{
    Ombrel::PropertyTree tree;
    effect.Serialize(tree);
    return tree;
}

#endif
