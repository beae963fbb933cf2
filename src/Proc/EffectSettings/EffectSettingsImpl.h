#ifndef OMBREL_PROC_EFFECT_SETTINGS_EFFECT_SETTINGS_IMPL_H
#define OMBREL_PROC_EFFECT_SETTINGS_EFFECT_SETTINGS_IMPL_H

#include "OmbrelCompiler.h"
#include "Proc/EffectSettings/EffectSettings.h"
#include "Proc/Reflection/DefaultRecord.h"
#include "Proc/Settings/SettingsRecord.h"

#include <concepts>
#include <memory>
#include <string>

namespace Ombrel::PhotoCore
{

/// A settings class that stores its own members in place of its record's.
template <class Class>
concept StoresItself = requires
{
    {
        Class::Schema()
        } -> std::same_as<const Proc::RecordSchema&>;
};

/// The settings class `Derived` around a record held by value. Everything here is compiled by whoever calls it, and not
/// exported.
template <class Record, class Derived> class OMBREL_SHARED_TYPE EffectSettingsImpl : public EffectSettings
{
public:
    /// The record of the class.
    using RecordType = Record;

    /// With a default record.
    OMBREL_LOCAL EffectSettingsImpl() : settings(Proc::MakeDefaultRecord<Record>()) {}
    /// With a copy of `record`.
    OMBREL_LOCAL explicit EffectSettingsImpl(const Record& record) : settings(record) {}

    /// A new object with a copy of `record`.
    OMBREL_LOCAL static std::shared_ptr<Derived> Create(const Record& record) { return std::make_shared<Derived>(record); }

    /// A new object with a default record.
    OMBREL_LOCAL static std::shared_ptr<IEffectSettings> CreateBase() { return std::make_shared<Derived>(); }

    /// What stands in the class's trees beside what every effect has there, or nothing if that does not come from a field list.
    OMBREL_LOCAL static const Proc::RecordSchema* GetSchema() noexcept
    {
        if constexpr (!Derived::UsesFieldList())
        {
            return nullptr;
        }
        else if constexpr (StoresItself<Derived>)
        {
            return &Derived::Schema();
        }
        else
        {
            return &Record::Schema();
        }
    }

    /// Finds in an effect of this class the object whose fields the schema describes: the record, or the effect where it stores
    /// itself.
    OMBREL_LOCAL static consteval StoredSource* GetStoredSource() noexcept
    {
        if constexpr (StoresItself<Derived>)
        {
            return [](IEffectSettings& effect) noexcept -> void* { return &static_cast<Derived&>(effect); };
        }
        else
        {
            return &RecordOf;
        }
    }

    /// The record, by its own type. It belongs to this object.
    OMBREL_LOCAL Record& GetTypedSettings() noexcept { return settings; }
    OMBREL_LOCAL const Record& GetTypedSettings() const noexcept { return settings; }

    OMBREL_LOCAL const std::string& GetClassId() const override { return settings.Record::GetClassId(); }

    OMBREL_LOCAL void Serialize(PropertyTree& tree) const override { SerializeWith(tree, &GetSchema, GetStored()); }

    OMBREL_LOCAL void Deserialize(const PropertyTree& tree) override
    {
        DeserializeWith(tree, &GetSchema, const_cast<void*>(GetStored()));
    }

    OMBREL_COLD OMBREL_LOCAL std::unique_ptr<const IPropertyAccess> GetPropertyAccess() const override
    {
        return MakePropertyAccess(StoresItself<Derived> ? nullptr : &GetSchema, &settings);
    }

    OMBREL_COLD OMBREL_LOCAL std::unique_ptr<IPropertyAccess> GetPropertyAccess() override
    {
        return MakePropertyAccess(StoresItself<Derived> ? nullptr : &GetSchema, &settings);
    }

    OMBREL_LOCAL std::shared_ptr<IEffectSettings> Clone() const override
    {
        return std::make_shared<Derived>(static_cast<const Derived&>(*this));
    }

    OMBREL_LOCAL const Proc::Settings& GetEffectSettings() const override { return settings; }
    OMBREL_LOCAL Proc::Settings& GetEffectSettingsRef() override { return settings; }

    OMBREL_COLD OMBREL_LOCAL void SetEffectSettings(const Proc::Settings& other) override
    {
        settings = dynamic_cast<const Record&>(other);
    }

    OMBREL_COLD OMBREL_LOCAL void Add(const IEffectSettings& other) override { Add(dynamic_cast<const Derived&>(other)); }

    OMBREL_LOCAL bool operator==(const IEffectSettings& other) const override
    {
        return HasClassId(other, settings.Record::GetClassId()) && operator==(dynamic_cast<const Derived&>(other));
    }

    /// Compares the records and nothing else.
    OMBREL_LOCAL virtual bool operator==(const Derived& other) const
    {
        if constexpr (requires { settings == settings; })
        {
            return settings == other.GetTypedSettings();
        }
        else
        {
            return Proc::AreFieldsEqual(Record::Schema(), &settings, &other.GetTypedSettings());
        }
    }

    /// Does nothing, but for the effects that are additive.
    OMBREL_LOCAL virtual void Add(const Derived&) {}

protected:
    /// Whether the stored form comes from a field list; the reflection layer says that it does.
    static consteval bool UsesFieldList() { return false; }

    /// The record.
    Record settings;

private:
    OMBREL_LOCAL const void* GetStored() const noexcept
    {
        if constexpr (StoresItself<Derived>)
        {
            return static_cast<const Derived*>(this);
        }
        else
        {
            return &settings;
        }
    }
};

/// Adds how many input images the effect takes.
template <class Record, class Derived, IEffectSettings::InputType Input>
class OMBREL_SHARED_TYPE EffectSettingsInput : public EffectSettingsImpl<Record, Derived>
{
public:
    using EffectSettingsImpl<Record, Derived>::EffectSettingsImpl;

    OMBREL_LOCAL IEffectSettings::InputType GetInputType() override { return Input; }
};

/// Marks a class whose stored form comes from a field list: the record's, or the class's own where it has one. The former also
/// has a property access, the latter has none.
template <class Record, class Derived, IEffectSettings::InputType Input>
class OMBREL_SHARED_TYPE EffectSettingsReflection : public EffectSettingsInput<Record, Derived, Input>
{
public:
    using EffectSettingsInput<Record, Derived, Input>::EffectSettingsInput;

protected:
    /// The base asks for the answer below.
    friend EffectSettingsImpl<Record, Derived>;

    /// True, unlike that of the base.
    static consteval bool UsesFieldList() { return true; }
};

/// By the number of images, for classes whose stored form does not come from a field list.
template <class Record, class Derived>
using EffectSettingsOneInput = EffectSettingsInput<Record, Derived, IEffectSettings::InputType::One>;
template <class Record, class Derived>
using EffectSettingsTwoInput = EffectSettingsInput<Record, Derived, IEffectSettings::InputType::Two>;
template <class Record, class Derived>
using EffectSettingsVarInput = EffectSettingsInput<Record, Derived, IEffectSettings::InputType::Var>;

/// By the number of images, for classes whose stored form comes from a field list.
template <class Record, class Derived>
using EffectSettingsOneInputReflection = EffectSettingsReflection<Record, Derived, IEffectSettings::InputType::One>;
template <class Record, class Derived>
using EffectSettingsTwoInputReflection = EffectSettingsReflection<Record, Derived, IEffectSettings::InputType::Two>;
template <class Record, class Derived>
using EffectSettingsVarInputReflection = EffectSettingsReflection<Record, Derived, IEffectSettings::InputType::Var>;

} // namespace Ombrel::PhotoCore

#endif
