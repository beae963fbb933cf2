// Makes an effect, changes it by key, stores it and reads it back.

#include "Proc/EffectSettings/EffectSettings.h"
#include "PropertyTree/PropertyTree.h"

#include <iostream>
#include <memory>

int main()
{
    using Ombrel::PhotoCore::EffectSettings;
    using Ombrel::PhotoCore::IEffectSettings;

    const auto vibrance = IEffectSettings::CreateEffectSettings("EFFECT_VIBRANCE");
    vibrance->GetPropertyAccess()->SetProperty("strength", 40);

    Ombrel::PropertyTree stored;
    EffectSettings::SerializePtr(stored, vibrance); // {"name": "EFFECT_VIBRANCE", "strength": 40}

    std::shared_ptr<IEffectSettings> copy;
    EffectSettings::DeserializePtr(stored, copy);

    std::cout << "strength " << stored["strength"].getScalar().toInt() << ", equal: " << (*copy == *vibrance ? "yes" : "no")
              << "\n";
}
