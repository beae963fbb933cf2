#ifndef OMBREL_PROC_EFFECT_SETTINGS_I_EFFECT_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_I_EFFECT_SETTINGS_H

#include "OmbrelExport.h"
#include "PhotoUtil/ISerializableBase.h"
#include "Proc/Settings/StoredKeys.h"

#include <concepts>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Ombrel::Proc
{
class Settings;
}

namespace Ombrel::PhotoCore
{

class HelperSettings;

/// The settings of one image effect: a record of parameters with what the editor needs of it. The order of the virtual
/// operations is fixed.
///
/// Threads: different objects are independent; one object is for many readers or one writer. `EffectSettingsSimple` and
/// `ResizeSettings` promise less.
class OMBREL_API IEffectSettings : public PhotoUtil::ISerializableBase
{
public:
    /// How many input images an effect takes.
    enum class InputType : std::int32_t
    {
        One = 0,
        Two = 1,
        Var = 2,
    };

    /// Makes a default effect of one class.
    using Factory = std::function<std::shared_ptr<IEffectSettings>()>;
    /// Effects in their order. An element may be null.
    using List = std::vector<std::shared_ptr<IEffectSettings>>;
    using ConstList = std::vector<std::shared_ptr<const IEffectSettings>>;

    /// No key of a settings class that stores members of its own may be one of these.
    static constexpr const auto& RESERVED_KEYS = Proc::StoredKeys::RESERVED;

    /// A copy with a record of its own, but that an `EffectSettingsSimple` shares its record with its clone.
    virtual std::shared_ptr<IEffectSettings> Clone() const = 0;

    /// Which implementation runs the effect, one of `Proc::ImplNames`.
    virtual const std::string& GetImplName() const = 0;

    /// The record. It belongs to this object.
    virtual const Proc::Settings& GetEffectSettings() const = 0;
    virtual Proc::Settings& GetEffectSettingsRef() = 0;

    /// What the editor's apply step needs of the effect. It belongs to this object.
    virtual const HelperSettings& GetHelperSettings() const = 0;
    /// How many input images the effect takes.
    virtual InputType GetInputType() = 0;

    /// The helper settings, to be changed.
    virtual HelperSettings& HelperSetting() = 0;

    /// True if `Add` folds another effect of the class into this one.
    virtual bool IsAdditive() const = 0;

    /// True if the effect counts as empty. Most classes always answer false, even if `IsEmpty` of their record is true.
    virtual bool IsEmpty() const = 0;

    /// Replaces the record by a copy of `settings` and leaves the rest.
    /// @throws std::bad_cast if `settings` is a record of another type; this object is then unchanged
    virtual void SetEffectSettings(const Proc::Settings& settings) = 0;

    /// Folds `other` into this effect; does nothing where `IsAdditive` is false.
    /// @throws std::bad_cast if `other` is of another class
    virtual void Add(const IEffectSettings& other) = 0;

    /// Compares the records: false for another class id. Implementation name and helper settings play no part.
    /// @throws std::bad_cast if the class ids agree and the classes do not
    virtual bool operator==(const IEffectSettings& other) const = 0;

    bool operator!=(const IEffectSettings& other) const { return !operator==(other); }

    /// Makes a factory known under a class id. Not to be run beside any other call that uses the registry on another thread;
    /// a factory may register others and create other effects.
    /// @throws Exception "Duplicate class id (...)!" if the id is known; its factory stays
    static void RegisterFactory(const std::string& id, Factory factory);

    /// What the factory of `id` returns, which for a caller's own may be null, or throws. Any number of threads may call it at
    /// once.
    /// @throws Exception "Unknown Effect Setting type (...)!" if the id is not known
    /// @throws std::bad_function_call if an empty function was registered
    static std::shared_ptr<IEffectSettings> CreateEffectSettings(const std::string& id);

    /// Lists of the same length with equal elements in the same order, as `Equals` compares them.
    static bool Equal(const ConstList& a, const ConstList& b);

    /// The same pointer, both may be null; or two objects that are equal.
    /// @throws what `operator==` throws
    static bool Equals(const std::shared_ptr<const IEffectSettings>& a, const std::shared_ptr<const IEffectSettings>& b);

    /// The first element whose record has the class id, or an empty pointer. Null elements are passed over.
    static std::shared_ptr<const IEffectSettings> Find(const ConstList& list, const std::string& id);
    static std::shared_ptr<IEffectSettings> Find(const List& list, const std::string& id);

    /// The same effects, shared.
    static ConstList ToConstList(const List& list);

protected:
    IEffectSettings() = default;
    IEffectSettings(const IEffectSettings&) = default;
    IEffectSettings(IEffectSettings&&) noexcept = default;
    IEffectSettings& operator=(const IEffectSettings&) = default;
    IEffectSettings& operator=(IEffectSettings&&) noexcept = default;
};

/// Two effects of any classes compare through the virtual `operator==`. Without this form the typed comparison of one class
/// and the untyped one of its base would be ambiguous.
template <std::derived_from<IEffectSettings> A, std::derived_from<IEffectSettings> B> bool operator==(const A& a, const B& b)
{
    return static_cast<const IEffectSettings&>(a).operator==(static_cast<const IEffectSettings&>(b));
}

} // namespace Ombrel::PhotoCore

#endif
