// Stored effects from JSON text and back, through the package's second library.

#include "own-effect/Expect.h"

#include "Proc/EffectSettings/EffectSettings.h"
#include "PropertyTreeJson/PropertyTreeJson.h"

#include <iostream>
#include <memory>
#include <string>

int main()
{
    using Ombrel::PhotoCore::EffectSettings;

    std::shared_ptr<Ombrel::PhotoCore::IEffectSettings> effect;
    EffectSettings::DeserializePtr(Ombrel::ReadJson(R"({"sigma": 0.5, "radius": 3, "name": "EFFECT_ACID"})"), effect);

    Ombrel::PropertyTree tree;
    EffectSettings::SerializePtr(tree, effect);
    Studio::Expect("text", Ombrel::WriteJson(tree), R"({"name":"EFFECT_ACID","radius":3})");

    std::string error;
    try
    {
        Ombrel::ReadJson("[1, 2");
    }
    catch (const Ombrel::JsonError& caught) // thrown in another module
    {
        error = "column " + std::to_string(caught.column());
    }
    Studio::Expect("error", error, "column 6");
    std::cout << "json: fine\n";
}
