#ifndef OMBREL_PROC_EFFECT_SETTINGS_EFFECT_SETTINGS_IMPL_H
#define OMBREL_PROC_EFFECT_SETTINGS_EFFECT_SETTINGS_IMPL_H

#include "Proc/EffectSettings/EffectSettings.h"
#include "Proc/Reflection/DefaultRecord.h"
#include "Proc/Settings/Settings.h"

#include <memory>
#include <string>

namespace Ombrel::Proc
{
struct RecordSchema;
}

namespace Ombrel::PhotoCore
{

/// The settings class `Derived` around a record held by value. This and the layers below are declared here; their bodies stand
/// in `EffectSettingsBody.h`, for the one file of each settings class that compiles them. What is inline here is compiled by
/// everyone who calls it, and not exported.
template <class Record, class Derived> class OMBREL_API EffectSettingsImpl : public EffectSettings
{
public:
    using RecordType = Record;

    OMBREL_LOCAL EffectSettingsImpl() : settings(Proc::MakeDefaultRecord<Record>()) {}
    OMBREL_LOCAL explicit EffectSettingsImpl(const Record& record) : settings(record) {}

    OMBREL_LOCAL static std::shared_ptr<Derived> Create(const Record& record) { return std::make_shared<Derived>(record); }

    /// A new object with a default record.
    OMBREL_LOCAL static std::shared_ptr<IEffectSettings> CreateBase() { return std::make_shared<Derived>(); }

    /// What stands in the class's trees beside what every effect has there, or nothing if that does not come from a field list.
    static const Proc::RecordSchema* GetSchema() noexcept;

    OMBREL_LOCAL Record& GetTypedSettings() noexcept { return settings; }
    OMBREL_LOCAL const Record& GetTypedSettings() const noexcept { return settings; }

    OMBREL_LOCAL const std::string& GetClassId() const override { return settings.Record::GetClassId(); }

    void Serialize(PropertyTree& tree) const override;
    void Deserialize(const PropertyTree& tree) override;
    std::unique_ptr<const IPropertyAccess> GetPropertyAccess() const override;
    std::unique_ptr<IPropertyAccess> GetPropertyAccess() override;

    OMBREL_LOCAL std::shared_ptr<IEffectSettings> Clone() const override
    {
        return std::make_shared<Derived>(static_cast<const Derived&>(*this));
    }

    OMBREL_LOCAL const Proc::Settings& GetEffectSettings() const override { return settings; }
    OMBREL_LOCAL Proc::Settings& GetEffectSettingsRef() override { return settings; }

    OMBREL_LOCAL void SetEffectSettings(const Proc::Settings& other) override { settings = dynamic_cast<const Record&>(other); }

    OMBREL_LOCAL void Add(const IEffectSettings& other) override { Add(dynamic_cast<const Derived&>(other)); }

    OMBREL_LOCAL bool operator==(const IEffectSettings& other) const override
    {
        const std::string& id = settings.Record::GetClassId();
        const std::string& otherId = other.GetEffectSettings().GetClassId();
        return (&otherId == &id || otherId == id) && operator==(dynamic_cast<const Derived&>(other));
    }

    /// Compares the records and nothing else.
    virtual bool operator==(const Derived& other) const;

    /// Does nothing, but for the effects that are additive.
    OMBREL_LOCAL virtual void Add(const Derived&) {}

protected:
    // Whether the stored form comes from a field list; the reflection layer says that it does.
    static consteval bool UsesFieldList() { return false; }

    Record settings;
};

/// Adds how many input images the effect takes.
template <class Record, class Derived, IEffectSettings::InputType Input>
class OMBREL_API EffectSettingsInput : public EffectSettingsImpl<Record, Derived>
{
public:
    using EffectSettingsImpl<Record, Derived>::EffectSettingsImpl;

    IEffectSettings::InputType GetInputType() override { return Input; }
};

/// Marks a class whose stored form comes from a field list: the record's, or the class's own where it has one. The former also
/// has a property access, the latter has none.
template <class Record, class Derived, IEffectSettings::InputType Input>
class OMBREL_API EffectSettingsReflection : public EffectSettingsInput<Record, Derived, Input>
{
public:
    using EffectSettingsInput<Record, Derived, Input>::EffectSettingsInput;

protected:
    friend EffectSettingsImpl<Record, Derived>;

    static consteval bool UsesFieldList() { return true; }
};

template <class Record, class Derived>
using EffectSettingsOneInput = EffectSettingsInput<Record, Derived, IEffectSettings::InputType::One>;
template <class Record, class Derived>
using EffectSettingsTwoInput = EffectSettingsInput<Record, Derived, IEffectSettings::InputType::Two>;
template <class Record, class Derived>
using EffectSettingsVarInput = EffectSettingsInput<Record, Derived, IEffectSettings::InputType::Var>;

template <class Record, class Derived>
using EffectSettingsOneInputReflection = EffectSettingsReflection<Record, Derived, IEffectSettings::InputType::One>;
template <class Record, class Derived>
using EffectSettingsTwoInputReflection = EffectSettingsReflection<Record, Derived, IEffectSettings::InputType::Two>;
template <class Record, class Derived>
using EffectSettingsVarInputReflection = EffectSettingsReflection<Record, Derived, IEffectSettings::InputType::Var>;

} // namespace Ombrel::PhotoCore

#endif
