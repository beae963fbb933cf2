#ifndef OMBREL_TESTS_HOSTILE_USER_EFFECTS_H
#define OMBREL_TESTS_HOSTILE_USER_EFFECTS_H

#include "Proc/EffectSettings/EffectSettings.h"
#include "Proc/Settings/Settings.h"
#include "Proc/Settings/SettingsEffectAcid.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>

namespace UserEffects
{

/// An effect of a caller's own that does what it is told. Without word it is a decent effect with the class id "userEffect".
class UserEffect : public Ombrel::PhotoCore::EffectSettings
{
public:
    struct Behaviour
    {
        std::string classId = "userEffect";
        std::function<std::shared_ptr<IEffectSettings>(const UserEffect&)> clone = [](const UserEffect& effect)
        { return std::make_shared<UserEffect>(effect); };
        std::function<void(Ombrel::PropertyTree&)> serialize = [](Ombrel::PropertyTree&) {};
        std::function<void(const Ombrel::PropertyTree&)> deserialize = [](const Ombrel::PropertyTree&) {};
        std::function<bool()> isEqual = [] { return true; };
        std::shared_ptr<Ombrel::Proc::Settings> record = std::make_shared<Ombrel::Proc::SettingsEffectAcid>();
    };

    explicit UserEffect(Behaviour behaviour) : m_behaviour(std::move(behaviour)) {}

    const std::string& GetClassId() const override { return m_behaviour.classId; }

    void Serialize(Ombrel::PropertyTree& tree) const override
    {
        EffectSettings::Serialize(tree);
        m_behaviour.serialize(tree);
    }

    void Deserialize(const Ombrel::PropertyTree& tree) override
    {
        EffectSettings::Deserialize(tree);
        m_behaviour.deserialize(tree);
    }

    std::shared_ptr<IEffectSettings> Clone() const override { return m_behaviour.clone(*this); }
    const Ombrel::Proc::Settings& GetEffectSettings() const override { return *m_behaviour.record; }
    Ombrel::Proc::Settings& GetEffectSettingsRef() override { return *m_behaviour.record; }
    InputType GetInputType() override { return InputType::One; }
    void SetEffectSettings(const Ombrel::Proc::Settings&) override {}
    void Add(const IEffectSettings&) override {}
    bool operator==(const IEffectSettings&) const override { return m_behaviour.isEqual(); }

private:
    Behaviour m_behaviour;
};

inline std::shared_ptr<UserEffect> Make(UserEffect::Behaviour behaviour)
{
    return std::make_shared<UserEffect>(std::move(behaviour));
}

} // namespace UserEffects

#endif
