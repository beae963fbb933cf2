#ifndef OMBREL_PROC_EFFECT_SETTINGS_EFFECT_SETTINGS_SIMPLE_H
#define OMBREL_PROC_EFFECT_SETTINGS_EFFECT_SETTINGS_SIMPLE_H

#include "Proc/EffectSettings/EffectSettings.h"

#include <memory>
#include <string>

namespace Ombrel::PhotoCore
{

/// An effect around any record, for an effect that has no settings class of its own. Copies and clones share the record.
///
/// Threads: effects that share a record count as one object.
///
/// Record and input type are not stored: what is read back from a tree has no record and takes one image. An effect without a
/// record answers questions with an empty record of its own class id and throws `std::logic_error` where its record would
/// change.
class OMBREL_API EffectSettingsSimple : public EffectSettings
{
public:
    static constexpr const char* CLASS_NAME = "effectSettingsSimple";
    static const std::string CLASS_ID;

    /// One input and no record.
    EffectSettingsSimple();
    explicit EffectSettingsSimple(InputType type, std::shared_ptr<Proc::Settings> record = nullptr);

    EffectSettingsSimple(const EffectSettingsSimple&);
    EffectSettingsSimple(EffectSettingsSimple&&) noexcept;
    EffectSettingsSimple& operator=(const EffectSettingsSimple&);
    EffectSettingsSimple& operator=(EffectSettingsSimple&&) noexcept;
    ~EffectSettingsSimple() override;

    /// A new object around `record`, which may be null and is shared with the caller. It takes one image where no type is
    /// given.
    static std::shared_ptr<EffectSettingsSimple> Create(const std::shared_ptr<Proc::Settings>& record);
    static std::shared_ptr<EffectSettingsSimple> Create(InputType type, std::shared_ptr<Proc::Settings> record);

    /// One input and no record.
    static std::shared_ptr<IEffectSettings> CreateBase();

    /// Its own class id, whatever the record is.
    const std::string& GetClassId() const override;

    std::shared_ptr<IEffectSettings> Clone() const override;
    const Proc::Settings& GetEffectSettings() const override;
    Proc::Settings& GetEffectSettingsRef() override;
    InputType GetInputType() override;

    /// Calls the assignment of `Proc::Settings` on the record, which copies nothing of the derived part.
    void SetEffectSettings(const Proc::Settings& other) override;

    /// Does nothing.
    void Add(const IEffectSettings& other) override;

    /// False, also for an object with itself: nothing is known about the record's comparison.
    bool operator==(const IEffectSettings& other) const override;
    virtual bool operator==(const EffectSettingsSimple& other) const;

    /// Lets the left effect answer. Without it the compiler would turn the two round, since this class is an exact match.
    friend bool operator==(const IEffectSettings& a, const EffectSettingsSimple& b)
    {
        return a.operator==(static_cast<const IEffectSettings&>(b));
    }

    /// How many input images the effect is to take.
    void SetInputType(InputType type);
    /// Which implementation is to run the effect. Any text is taken.
    void SetImplName(const std::string& name);

private:
    InputType inputType;
    std::shared_ptr<Proc::Settings> settings;
};

} // namespace Ombrel::PhotoCore

#endif
