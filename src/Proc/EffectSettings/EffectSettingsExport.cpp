#include "Proc/EffectSettings/EffectSettingsExport.h"

#include "Proc/EffectSettings/AcidSettings.h"
#include "Proc/EffectSettings/AdjusterSettings.h"
#include "Proc/EffectSettings/ColorBalanceAutoSettings.h"
#include "Proc/EffectSettings/ColorBalanceSettings.h"
#include "Proc/EffectSettings/CropSettings.h"
#include "Proc/EffectSettings/DetailsEnhanceSettings.h"
#include "Proc/EffectSettings/DirectionalAreaDeformationSettings.h"
#include "Proc/EffectSettings/EffectSettingsSimple.h"
#include "Proc/EffectSettings/EmptySettings.h"
#include "Proc/EffectSettings/FishEyeSettings.h"
#include "Proc/EffectSettings/FlipSettings.h"
#include "Proc/EffectSettings/ImplodeSettings.h"
#include "Proc/EffectSettings/PixelateSettings.h"
#include "Proc/EffectSettings/ResizeSettings.h"
#include "Proc/EffectSettings/RotateSettings.h"
#include "Proc/EffectSettings/SmartBlurSettings.h"
#include "Proc/EffectSettings/TransposeSettings.h"
#include "Proc/EffectSettings/VibranceSettings.h"
#include "Proc/Reflection/SpelledName.h"

#include <algorithm>
#include <array>
#include <map>
#include <string>
#include <utility>

namespace Ombrel::PhotoCore
{
namespace
{

template <class Effect> consteval const char* ClassIdOf()
{
    if constexpr (requires { Effect::CLASS_NAME; })
    {
        return Effect::CLASS_NAME;
    }
    else
    {
        return Effect::RecordType::CLASS_NAME;
    }
}

template <class Effect> consteval EffectClass Entry(Registration registration = Registration::StartUpList)
{
    return {Proc::TYPE_NAME<Effect>, ClassIdOf<Effect>(), &Effect::CreateBase, registration};
}

// The order of the start-up list is fixed.
constexpr std::array CLASSES{
    Entry<AcidSettings>(),
    Entry<AdjusterSettings>(),
    Entry<ColorBalanceAutoSettings>(),
    Entry<ColorBalanceSettings>(),
    Entry<CropSettings>(),
    Entry<DetailsEnhanceSettings>(),
    Entry<DirectionalAreaDeformationSettings>(),
    Entry<EmptySettings>(),
    Entry<FishEyeSettings>(),
    Entry<FlipSettings>(),
    Entry<ImplodeSettings>(),
    Entry<PixelateSettings>(),
    Entry<ResizeSettings>(),
    Entry<RotateSettings>(),
    Entry<SmartBlurSettings>(),
    Entry<TransposeSettings>(),
    Entry<VibranceSettings>(),
    Entry<EffectSettingsSimple>(),
};

// The registry is built without the test of RegisterFactory, which would drop a repeated id silently.
static_assert(
    []
    {
        std::array<std::string_view, CLASSES.size()> ids;
        std::ranges::transform(CLASSES, ids.begin(), &EffectClass::classId);
        std::ranges::sort(ids);
        return std::ranges::adjacent_find(ids) == ids.end();
    }(),
    "two settings classes have the same class id");

using Registry = std::map<std::string, IEffectSettings::Factory>;

Registry MakeRegistry()
{
    Registry registry;
    for (const EffectClass& effectClass : CLASSES)
    {
        if (effectClass.registration == Registration::StartUpList)
        {
            registry.emplace(effectClass.classId, effectClass.create);
        }
    }
    return registry;
}

Registry& GetRegistry()
{
    static Registry registry = MakeRegistry();
    return registry;
}

bool RegisterOthers()
{
    for (const EffectClass& effectClass : CLASSES)
    {
        if (effectClass.registration == Registration::Factory)
        {
            IEffectSettings::RegisterFactory(effectClass.classId, effectClass.create);
        }
    }
    return true;
}

// Builds the registry while the library loads, before any caller can run into it from two threads.
const bool g_isRegistered = RegisterOthers();

} // namespace

std::span<const EffectClass> EffectClasses() noexcept
{
    return CLASSES;
}

void IEffectSettings::RegisterFactory(const std::string& id, Factory factory)
{
    if (!GetRegistry().try_emplace(id, std::move(factory)).second)
    {
        ThrowException("Duplicate class id (" + id + ")!", REGISTER_FACTORY_LOCATION);
    }
}

std::shared_ptr<IEffectSettings> IEffectSettings::CreateEffectSettings(const std::string& id)
{
    const Registry& registry = GetRegistry();
    const auto found = registry.find(id);
    if (found == registry.end())
    {
        ThrowException("Unknown Effect Setting type (" + id + ")!", CREATE_EFFECT_SETTINGS_LOCATION);
    }
    return found->second();
}

} // namespace Ombrel::PhotoCore
