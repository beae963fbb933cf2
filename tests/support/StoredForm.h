#ifndef OMBREL_TESTS_SUPPORT_STORED_FORM_H
#define OMBREL_TESTS_SUPPORT_STORED_FORM_H

#include "Proc/EffectSettings/IEffectSettings.h"
#include "PropertyTree/PropertyTree.h"

namespace Support
{

/// The tree of an effect.
inline Ombrel::PropertyTree StoredForm(const Ombrel::PhotoCore::IEffectSettings& effect)
{
    Ombrel::PropertyTree tree;
    effect.Serialize(tree);
    return tree;
}

/// A fresh effect read from a tree.
template <class Effect> Effect Restored(const Ombrel::PropertyTree& tree)
{
    Effect effect;
    effect.Deserialize(tree);
    return effect;
}

} // namespace Support

#endif
