#include "UseAll.h"

#include "Proc/EffectSettings/AcidSettings.h"
#include "Proc/EffectSettings/EffectSettings.h"
#include "PropertyTree/PropertyTree.h"

#include <memory>

namespace
{

Ombrel::PropertyTree g_tree; // goes with the module, and refers to texts that the library made later

} // namespace

extern "C" [[gnu::visibility("default")]] void UseAll()
{
    Lifetime::UseAll("module");
    Lifetime::UseConstants("module");
    const auto effect = std::make_shared<Ombrel::PhotoCore::AcidSettings>();
    effect->GetTypedSettings().radius = 3;
    Ombrel::PhotoCore::EffectSettings::SerializePtr(g_tree, effect);
}
