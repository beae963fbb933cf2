#include "Proc/EffectSettings/EffectSettingsSimple.h"
#include "effects/BrushPackageSamples.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <memory>
#include <typeinfo>

namespace
{

using namespace BrushPackageSamples;
using namespace Ombrel::PhotoCore;
using Support::Map;
using Support::StoredForm;

TEST(MaskBlender, EachSetterReachesItsOwnKeyAndGetter)
{
    const auto stored = [](const auto& change)
    {
        EffectsPackageWithBrushSettings effect;
        change(effect.GetTypedSettings());
        return StoredForm(effect);
    };
    EXPECT_EQ(stored([](Record& record) { record.SetUseExternalMask(true); }), Map({{"useExternalMask", true}}));
    EXPECT_EQ(stored([](Record& record) { record.SetSwapFramesIfMaskFound(true); }), Map({{"swapFramesIfMaskFound", true}}));
    EXPECT_EQ(stored([](Record& record) { record.SetBlendingStrength(3); }), Map({{"blendingStrength", 3}}));
    EXPECT_EQ(stored([](Record& record) { record.SetBackgroundFrameIndex(3); }), Map({{"backgroundIndex", 3}}));

    Record record;
    record.SetUseExternalMask(true);
    EXPECT_TRUE(record.GetUseExternalMask());
    EXPECT_FALSE(record.GetSwapFramesIfMaskFound());
    record.SetUseExternalMask(false);
    record.SetSwapFramesIfMaskFound(true);
    EXPECT_TRUE(record.GetSwapFramesIfMaskFound());
    EXPECT_FALSE(record.GetUseExternalMask());
}

// Says it is an acid and is none: comparing it with one throws.
class Impostor : public EffectSettingsSimple
{
public:
    Impostor() : EffectSettingsSimple(InputType::One, std::make_shared<Ombrel::Proc::SettingsEffectAcid>()) {}
};

TEST(MaskBlender, ComparesItsEffectsLastAndTheBackgroundFirst)
{
    Record acid;
    acid.SetForegroundEffects({std::make_shared<AcidSettings>()});
    Record impostor;
    impostor.SetForegroundEffects({std::make_shared<Impostor>()});
    EXPECT_THROW(static_cast<void>(acid == impostor), std::bad_cast);

    Record other = impostor;
    other.SetBackgroundEffects({std::make_shared<AcidSettings>()});
    EXPECT_FALSE(acid == other);
    other = impostor;
    other.SetBlendingStrength(3);
    EXPECT_FALSE(acid == other);
    other = impostor;
    other.SetUseExternalMask(true);
    EXPECT_FALSE(acid == other);
}

} // namespace
