#include "Plugin.h"

#include "../../../examples/own-effect/FrameSettings.h"
#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/EffectSettings/VibranceSettings.h"
#include "PropertyTree/PropertyTree.h"

#include <sstream>

namespace Borders
{

using namespace Ombrel::PhotoCore;
using Ombrel::PropertyTree;
using Studio::FrameSettings;

struct ImpostorRecord : Ombrel::Proc::SettingsRecord<ImpostorRecord>
{
    static const std::string CLASS_ID;

    bool operator==(const ImpostorRecord&) const { return true; }
};

const std::string ImpostorRecord::CLASS_ID{"EFFECT_VIBRANCE"};

class ImpostorSettings : public EffectSettingsOneInput<ImpostorRecord, ImpostorSettings>
{
public:
    using EffectSettingsInput::EffectSettingsInput;
};

namespace
{

void Raise(const std::string& text)
{
    Ombrel::Exception failure;
    failure << Ombrel::ErrorDescription(text) << Ombrel::ErrorCallStack("the plugin's stack");
    boost::throw_exception(failure, Ombrel::ThrowLocation{"Plugin/File", 34, "PluginFunction", 5});
}

std::shared_ptr<IEffectSettings> MakeFrame(std::int32_t width)
{
    Studio::SettingsEffectFrame record;
    record.SetWidth(width);
    return FrameSettings::Create(record);
}

std::int32_t WidthOf(const IEffectSettings& effect)
{
    return dynamic_cast<const FrameSettings&>(effect).GetTypedSettings().GetWidth();
}

void RegisterFrame()
{
    RegisterEffectClass<FrameSettings>();
}

std::int32_t StrengthOf(const IEffectSettings& effect)
{
    return dynamic_cast<const VibranceSettings&>(effect).GetTypedSettings().m_strength;
}

const std::string& VibranceId()
{
    return Ombrel::Proc::SettingsEffectVibrance::CLASS_ID;
}

constexpr Plugin PLUGIN{&Raise,     &FailureOf,     &IEffectSettings::CreateEffectSettings, &MakeFrame,
                        &WidthOf,   &RegisterFrame, &ImpostorSettings::CreateBase,          &StrengthOf,
                        &VibranceId};

// Writes each effect, reads it back and clones it, which makes the default records of all classes.
void ExerciseEveryClass(std::ostream& faults)
{
    for (const EffectClass& effectClass : EffectClasses())
    {
        const auto effect = effectClass.create();
        PropertyTree tree;
        EffectSettings::SerializePtr(tree, effect);
        effect->Clone()->Deserialize(tree);
        if (tree["name"] != PropertyTree(effectClass.classId))
        {
            faults << effectClass.className << " has another name; ";
        }
    }
}

std::string Exercise()
{
    std::ostringstream faults;
    ExerciseEveryClass(faults);

    // A registry that had outlived the plugin would know the class already.
    RegisterFrame();
    PropertyTree tree;
    EffectSettings::SerializePtr(tree, MakeFrame(12));
    std::shared_ptr<IEffectSettings> frame;
    EffectSettings::DeserializePtr(tree, frame);
    if (WidthOf(*frame) != 12)
    {
        faults << "the frame has a width of " << WidthOf(*frame) << "; ";
    }
    if (FailureOf(&RegisterFrame).text != "Duplicate class id (EFFECT_FRAME)!")
    {
        faults << "the frame was registered twice; ";
    }
    return faults.str();
}

} // namespace
} // namespace Borders

const Borders::Plugin* BordersPlugin()
{
    return &Borders::PLUGIN;
}

const char* BordersExercise()
{
    static std::string faults; // lives until the plugin goes
    faults = Borders::FailureOf([] { faults = Borders::Exercise(); }).text + faults;
    return faults.c_str();
}
