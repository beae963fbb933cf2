#include "Fuzz.h"
#include "StoredEffects.h"

#include "Proc/EffectSettings/EffectSettings.h"
#include "Proc/Settings/Settings.h"
#include "support/StoredForm.h"
#include "support/WholeRecordAccess.h"

// Trees of every class: whatever stands in them, the effect that comes of them is a whole one.
namespace Fuzz
{
namespace
{

using namespace Ombrel;
using namespace Ombrel::PhotoCore;
using Support::StoredForm;

constexpr const char* SIMPLE = "effectSettingsSimple";
constexpr const char* TILE = "effectSettingsTileStub";

// What they write is not what they read: three show what was set times the intensity, and a missing blending mode takes the
// alpha of a blend with it.
const std::vector<std::string_view> UNSTABLE_CLASSES{"EFFECT_BLEND", "EFFECT_FISH_EYE", "EFFECT_OIL_PAINT",
                                                     "EFFECT_RETRO_ARTEFACTS"};

// So is an angle that was read as a number and has no name.
bool IsStable(const PropertyTree& written)
{
    const auto hasNoAngle = [](const PropertyTree& part)
    { return part.contains("angle") && part["angle"] == PropertyTree(""); };
    return !Names(written, UNSTABLE_CLASSES) && !HasPart(written, hasNoAngle);
}

PropertyTree NamedForm(const std::shared_ptr<IEffectSettings>& effect)
{
    PropertyTree tree;
    EffectSettings::SerializePtr(tree, effect);
    return tree;
}

void CheckReadingBack(const std::shared_ptr<IEffectSettings>& effect, const PropertyTree& written)
{
    std::shared_ptr<IEffectSettings> back;
    const auto failure = Read(written, back);
    Require(!failure, "what was written is refused", failure.value_or(""));
    if (IsStable(written))
    {
        RequireSame(written, NamedForm(back), "what was written changes when it is read and written");
    }
    if (IsStable(written) && !Names(written, {SIMPLE}) && !HasNonFinite(written))
    {
        Require(*back == *effect && *effect == *back, "what was written reads as another effect");
    }
}

void CheckCopies(IEffectSettings& effect, const PropertyTree& written)
{
    const auto clone = effect.Clone();
    if (!Names(written, {TILE})) // it is copied without the members of the base
    {
        RequireSame(written, NamedForm(clone), "a clone is stored otherwise");
    }
    if (!Names(written, {SIMPLE}) && !HasNonFinite(written))
    {
        Require(*clone == effect && effect == *clone, "a clone is unequal");
    }
    Require(clone->IsEmpty() == effect.IsEmpty(), "a clone is empty otherwise");
    clone->Add(effect);
    if (effect.GetClassId() != SIMPLE) // which may have no record
    {
        const PropertyTree before = StoredForm(effect);
        effect.SetEffectSettings(effect.GetEffectSettings());
        const std::unique_ptr<Proc::Settings> record(effect.GetEffectSettings().Clone());
        effect.SetEffectSettings(*record);
        clone->SetEffectSettings(*record);
        RequireSame(before, StoredForm(effect), "its own record changes an effect");
    }
}

void CheckProperties(IEffectSettings& effect, const EffectClass& effectClass)
{
    const auto access = effect.GetPropertyAccess();
    if (!access)
    {
        return;
    }
    const Support::WholeRecordAccess whole(*effectClass.getSchema(), SubjectOf(effect));
    const std::vector<std::string> keys = whole.ListProperties();
    Require(access->ListProperties() == keys, "the properties are others");
    for (const std::string& key : keys)
    {
        RequireSame(whole.GetProperty(key), access->GetProperty(key), "a property is another: " + key);
    }
    RequireSame(PropertyTree(), access->GetProperty("no such key"), "a key that there is not");
}

void Check(const PropertyTree& tree, std::shared_ptr<IEffectSettings>& effect)
{
    Read(tree, effect);
    if (!effect)
    {
        return;
    }
    const PropertyTree written = NamedForm(effect);
    const EffectClass* const effectClass = ClassOf(written);
    Require(effectClass, "an effect without a class", effect->GetClassId());
    CheckReadingBack(effect, written);
    CheckProperties(*effect, *effectClass);
    CheckCopies(*effect, written);
    RequireSame(written, NamedForm(effect), "looking at an effect has changed it");
}

} // namespace
} // namespace Fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::shared_ptr<Ombrel::PhotoCore::IEffectSettings> effect; // which may be there already when a tree is read
    for (const Ombrel::PropertyTree& tree : Fuzz::ParseInput(data, size))
    {
        Fuzz::Check(tree, effect);
    }
    return 0;
}
