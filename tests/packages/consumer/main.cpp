#include "Inspection/Check.h"
#include "OmbrelVersion.h"
#include "Proc/EffectSettings/EffectSettings.h"
#include "PropertyTreeJson/PropertyTreeJson.h"

#include <iostream>
#include <memory>

using namespace Ombrel;

int main()
{
    const PropertyTree stored = ReadJson(R"({"name": "EFFECT_ACID", "radius": 3})");
    std::shared_ptr<PhotoCore::IEffectSettings> effect;
    PhotoCore::EffectSettings::DeserializePtr(stored, effect);
    PropertyTree written;
    PhotoCore::EffectSettings::SerializePtr(written, effect);
    std::cout << WriteJson(written) << ' ' << Inspection::Check(written).size() << " findings\n";
    return written == stored ? 0 : 1;
}
