#ifndef OMBREL_PROC_EFFECT_SETTINGS_EFFECT_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_EFFECT_SETTINGS_H

#include "OmbrelExport.h"
#include "Proc/EffectSettings/HelperSettings.h"
#include "Proc/EffectSettings/IEffectSettings.h"

#include <memory>
#include <string>

namespace Ombrel::Proc
{
struct RecordSchema;
}

namespace Ombrel::PhotoCore
{

/// What every effect has beside its record. Both members stand in the same map as the record's keys, as "implName" and
/// "helperSettings", each left out where it has its default.
class OMBREL_API EffectSettings : public IEffectSettings
{
public:
    EffectSettings(const EffectSettings&);
    EffectSettings(EffectSettings&&) noexcept;
    EffectSettings& operator=(const EffectSettings&);
    EffectSettings& operator=(EffectSettings&&) noexcept;
    ~EffectSettings() override;

    void Serialize(PropertyTree& tree) const override;

    /// Unlike the fields of a record, the two members keep what they hold where their key is missing.
    void Deserialize(const PropertyTree& tree) override;

    const std::string& GetImplName() const override;
    const HelperSettings& GetHelperSettings() const override;
    HelperSettings& HelperSetting() override;
    bool IsAdditive() const override;
    bool IsEmpty() const override;

    /// Stores an effect together with its class id, under the key "name"; a null pointer is a null tree.
    /// @throws std::length_error if effects stand in effects more than 512 levels deep, since they could not be read back; the
    ///         tree then holds part of the effect
    /// @throws what `Serialize` throws
    static void SerializePtr(PropertyTree& tree, const std::shared_ptr<const IEffectSettings>& effect);

    /// Makes the effect that the tree names, assigns it to `effect` and reads it; a null tree is a null pointer. A failure
    /// before the new object stands leaves `effect` alone; a failure in its read leaves it the new object, partly read. The old
    /// effect is kept until then, so that the tree may be one that it holds.
    /// @throws std::out_of_range "invalid map<K, T> key" if there is no "name"
    /// @throws std::invalid_argument if the tree is no map or "name" no string
    /// @throws Exception "Unknown Effect Setting type (...)!" for an unknown class id
    /// @throws std::bad_function_call or std::logic_error if an empty function, or one that makes nothing, was registered
    /// @throws std::length_error if effects stand in effects more than 512 levels deep; a null tree is no level
    /// @throws what `Deserialize` throws
    static void DeserializePtr(const PropertyTree& tree, std::shared_ptr<IEffectSettings>& effect);

protected:
    EffectSettings();

    /// Gives the schema of a class, or null.
    using SchemaSource = const Proc::RecordSchema*() noexcept;
    /// Gives the object in an effect that the schema describes.
    using StoredSource = void*(IEffectSettings& effect) noexcept;

    /// Also the fields of `object`, which the schema describes; none without a schema.
    void SerializeWith(PropertyTree& tree, SchemaSource* getSchema, const void* object) const;
    void DeserializeWith(const PropertyTree& tree, SchemaSource* getSchema, void* object);

    /// Access to the fields of `record`; an empty pointer without a source or a schema.
    static std::unique_ptr<IPropertyAccess> MakePropertyAccess(SchemaSource* getSchema, void* record);
    static std::unique_ptr<const IPropertyAccess> MakePropertyAccess(SchemaSource* getSchema, const void* record);

    /// The record of `effect`, as an object of its own class.
    static void* RecordOf(IEffectSettings& effect) noexcept;

    /// Whether the record of `effect` has the class id.
    static bool HasClassId(const IEffectSettings& effect, const std::string& id);

    /// One of `Proc::ImplNames`; what was read may be any text.
    std::string m_implName;
    /// What `GetHelperSettings` returns.
    HelperSettings m_helperSettings;
};

} // namespace Ombrel::PhotoCore

#endif
