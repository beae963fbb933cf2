#ifndef OMBREL_TESTS_EFFECTS_ADDING_H
#define OMBREL_TESTS_EFFECTS_ADDING_H

#include "Proc/EffectSettings/IEffectSettings.h"

template <class Effect>
concept HasPublicIsAdditive = requires(const Effect& effect)
{
    effect.IsAdditive();
};

template <class Effect>
concept HasPublicAdd = requires(Effect& effect)
{
    effect.Add(effect);
};

/// An effect whose adding is for callers of the interface, who ask before they add.
template <class Effect>
concept AddsThroughTheInterfaceAlone = !HasPublicIsAdditive<Effect> && !HasPublicAdd<Effect>;

inline void Add(Ombrel::PhotoCore::IEffectSettings& effect, const Ombrel::PhotoCore::IEffectSettings& other)
{
    effect.Add(other);
}

#endif
