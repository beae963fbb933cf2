#ifndef OMBREL_PROC_EFFECT_SETTINGS_EFFECT_SETTINGS_BODY_H
#define OMBREL_PROC_EFFECT_SETTINGS_EFFECT_SETTINGS_BODY_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Reflection/PropertyAccess.h"

#include <cstddef>
#include <memory>
#include <type_traits>

namespace Ombrel::PhotoCore
{

/// A settings class with a field list of its own stores its own members in place of the record's.
template <class Derived>
concept StoresItself = Proc::DescribesItself<Derived>;

template <class Record, class Derived> const Proc::RecordSchema* EffectSettingsImpl<Record, Derived>::GetSchema() noexcept
{
    if constexpr (!Derived::UsesFieldList())
    {
        return nullptr;
    }
    else if constexpr (StoresItself<Derived>)
    {
        return &Proc::Reflected<Derived>::Schema();
    }
    else
    {
        return &Proc::Reflected<Record>::Schema();
    }
}

template <class Record, class Derived> void EffectSettingsImpl<Record, Derived>::Serialize(PropertyTree& tree) const
{
    EffectSettings::Serialize(tree);
    if constexpr (Derived::UsesFieldList())
    {
        constexpr Proc::WriteFlags flags{.resetTargets = false, .omitDefaults = true};
        constexpr std::size_t others = 1; // the class id, where it is added
        if constexpr (StoresItself<Derived>)
        {
            Proc::Reflected<Derived>::Write({static_cast<const Derived&>(*this), tree.getMap(), &flags, others});
        }
        else
        {
            Proc::Reflected<Record>::Write({settings, tree.getMap(), &flags, others});
        }
    }
}

template <class Record, class Derived> void EffectSettingsImpl<Record, Derived>::Deserialize(const PropertyTree& tree)
{
    EffectSettings::Deserialize(tree);
    if constexpr (Derived::UsesFieldList())
    {
        constexpr Proc::ReadFlags flags{.resetMissing = true};
        if constexpr (StoresItself<Derived>)
        {
            Proc::Reflected<Derived>::Read({static_cast<Derived&>(*this), tree.getMap(), &flags});
        }
        else
        {
            Proc::Reflected<Record>::Read({settings, tree.getMap(), &flags});
        }
    }
}

template <class Record, class Derived>
std::unique_ptr<const PhotoUtil::ISerializableBase::IPropertyAccess>
EffectSettingsImpl<Record, Derived>::GetPropertyAccess() const
{
    // The access object promises nothing about const: what is handed out can only be read through.
    return const_cast<EffectSettingsImpl*>(this)->EffectSettingsImpl::GetPropertyAccess();
}

template <class Record, class Derived>
std::unique_ptr<PhotoUtil::ISerializableBase::IPropertyAccess> EffectSettingsImpl<Record, Derived>::GetPropertyAccess()
{
    if constexpr (Derived::UsesFieldList() && !StoresItself<Derived>)
    {
        return std::make_unique<Proc::PropertyAccessImpl<Record>>(&settings);
    }
    else
    {
        return nullptr;
    }
}

template <class Record, class Derived> bool EffectSettingsImpl<Record, Derived>::operator==(const Derived& other) const
{
    if constexpr (requires { settings == settings; })
    {
        return settings == other.GetTypedSettings();
    }
    else
    {
        return Proc::Reflected<Record>::Equal(settings, other.GetTypedSettings());
    }
}

} // namespace Ombrel::PhotoCore

#endif
