#ifndef OMBREL_PROC_EFFECT_SETTINGS_EFFECT_POINTER_CODEC_H
#define OMBREL_PROC_EFFECT_SETTINGS_EFFECT_POINTER_CODEC_H

#include "Proc/EffectSettings/EffectSettings.h"
#include "Proc/Reflection/Codec.h"

#include <memory>
#include <type_traits>

namespace Ombrel::Proc
{

/// An effect of any class inside a record, with its class id in its map; a null pointer is a null tree.
template <class Effect>
requires std::is_same_v<std::remove_const_t<Effect>, PhotoCore::IEffectSettings>
struct Codec<std::shared_ptr<Effect>>
{
    static constexpr ValueSchema SCHEMA{ValueKind::Effect};

    static void Write(PropertyTree& child, const std::shared_ptr<Effect>& value, const WriteFlags*)
    {
        PhotoCore::EffectSettings::SerializePtr(child, value);
    }

    static void Read(const PropertyTree& child, std::shared_ptr<Effect>& value, const ReadFlags*)
    {
        if constexpr (std::is_const_v<Effect>)
        {
            std::shared_ptr<PhotoCore::IEffectSettings> effect;
            PhotoCore::EffectSettings::DeserializePtr(child, effect);
            value = std::move(effect);
        }
        else
        {
            PhotoCore::EffectSettings::DeserializePtr(child, value);
        }
    }
};

} // namespace Ombrel::Proc

#endif
