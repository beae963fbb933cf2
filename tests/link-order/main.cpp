// Makes and uses an effect of every class before main, at a moment when any of the library's own initialisers may still be to
// come. What an effect has in common with others of its class, such as its class id, is asked for in main.

#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "Proc/EffectSettings/HelperSettings.h"
#include "PropertyTree/PropertyTree.h"

#include <cstdlib>
#include <iostream>
#include <string_view>

namespace
{

using Ombrel::PropertyTree;
using namespace Ombrel::PhotoCore;
using namespace std::string_view_literals;

void Expect(bool condition, std::string_view classId, const char* what)
{
    if (!condition)
    {
        std::cerr << classId << ": " << what << "\n";
        std::exit(EXIT_FAILURE);
    }
}

IEffectSettings::List MakeAll()
{
    IEffectSettings::List effects;
    for (const EffectClass& effectClass : EffectClasses())
    {
        if (effectClass.registration == Registration::None)
        {
            continue;
        }
        const auto effect = effects.emplace_back(IEffectSettings::CreateEffectSettings(effectClass.classId));
        Expect(effect != nullptr, effectClass.classId, "was not made");
        Expect(effect->GetHelperSettings().GetMaxWidth() == 4294967295U, effectClass.classId, "has a largest width");

        PropertyTree tree;
        effect->Serialize(tree);
        for (const auto& [key, child] : tree.getMap())
        {
            // A record that is stored even by default is an empty map.
            Expect(!child.isScalar() && !child.isList() && child.getMap().empty(), effectClass.classId, "stores a default");
        }
        effect->Deserialize(tree);
    }
    return effects;
}

const IEffectSettings::List g_effects = MakeAll();

} // namespace

int main()
{
    auto effect = g_effects.begin();
    for (const EffectClass& effectClass : EffectClasses())
    {
        if (effectClass.registration != Registration::None)
        {
            const std::string_view implName = effectClass.classId == "EFFECT_RESIZE"sv ? "ffmpeg" : "default";
            Expect((*effect)->GetImplName() == implName, effectClass.classId, "has another implementation name");
            Expect((*effect++)->GetClassId() == effectClass.classId, effectClass.classId, "has another class id");
        }
    }
    Expect(g_effects.size() >= 9, "registry", "has fewer classes than there are");
    std::cout << "started\n";
}
