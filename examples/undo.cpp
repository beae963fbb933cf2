// An undo history for a list of effects: steps are the changes that `Diff` finds, so a history of years of work stays small.

#include "Inspection/Changes.h"
#include "Proc/EffectSettings/AcidSettings.h"
#include "Proc/EffectSettings/EffectSettings.h"

#include <iostream>
#include <memory>
#include <utility>
#include <vector>

using namespace Ombrel;
using Effects = std::vector<std::shared_ptr<PhotoCore::IEffectSettings>>;

class History
{
public:
    explicit History(Effects& effects) : m_effects(effects), m_stored(Stored()) {}

    /// To be called after each change of the effects. While one slider is dragged, `joins` makes one step of all changes.
    void Record(bool joins = false)
    {
        PropertyTree now = Stored();
        Inspection::ChangeList step = Inspection::Diff(m_stored, now);
        if (step.empty())
        {
            return;
        }
        if (joins && !m_done.empty())
        {
            step = Inspection::Joined(std::exchange(m_done.back(), {}), step);
            m_done.pop_back();
        }
        m_done.push_back(std::move(step));
        m_undone.clear();
        m_stored = std::move(now);
    }

    bool Undo() { return Go(m_done, m_undone); }
    bool Redo() { return Go(m_undone, m_done); }

private:
    // The trap: to read an older tree into an effect that exists keeps its name and helper settings where the tree has none,
    // since `Deserialize` leaves them alone. `Apply` makes a new effect of each that changes; pointers to it must be renewed.
    bool Go(std::vector<Inspection::ChangeList>& from, std::vector<Inspection::ChangeList>& to)
    {
        if (from.empty())
        {
            return false;
        }
        Inspection::ChangeList step = Inspection::Inverse(std::move(from.back()));
        from.pop_back();
        Inspection::Apply(step, m_effects);
        m_stored = Stored();
        to.push_back(std::move(step));
        return true;
    }

    PropertyTree Stored() const
    {
        PropertyTree tree;
        PropertyTree::List& list = tree.makeList(m_effects.size());
        for (const auto& effect : m_effects)
        {
            PhotoCore::EffectSettings::SerializePtr(list.emplace_back(), effect);
        }
        return tree;
    }

    Effects& m_effects;
    PropertyTree m_stored; // what the effects are without the changes that are not recorded yet
    std::vector<Inspection::ChangeList> m_done;
    std::vector<Inspection::ChangeList> m_undone;
};

int main()
{
    Effects effects{PhotoCore::AcidSettings::CreateBase()};
    History history(effects);
    const auto radius = [&effects] { return dynamic_cast<PhotoCore::AcidSettings&>(*effects[0]).GetTypedSettings().radius; };
    for (int value = 1; value <= 40; ++value) // a slider
    {
        dynamic_cast<PhotoCore::AcidSettings&>(*effects[0]).GetTypedSettings().radius = value;
        history.Record(value != 1);
    }
    effects[0]->HelperSetting().SetUndoSet(true);
    history.Record();
    std::cout << "radius " << radius() << ", undo set " << effects[0]->GetHelperSettings().GetUndoSet() << '\n';
    history.Undo();
    std::cout << "radius " << radius() << ", undo set " << effects[0]->GetHelperSettings().GetUndoSet() << '\n';
    history.Undo();
    std::cout << "radius " << radius() << (history.Undo() ? ", more" : ", no more") << '\n';
    history.Redo();
    history.Redo();
    std::cout << "radius " << radius() << ", undo set " << effects[0]->GetHelperSettings().GetUndoSet() << '\n';
}
