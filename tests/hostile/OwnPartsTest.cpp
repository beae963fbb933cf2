#include "Proc/EffectSettings/EffectsPackageWithBrushSettings.h"
#include "Proc/EffectSettings/EmptySettings.h"
#include "Proc/EffectSettings/FacePackageSettings.h"
#include "Proc/EffectSettings/TileSettings.h"
#include "catalogue/CatalogueFixture.h"
#include "effects/BrushPackageSamples.h"

#include <memory>
#include <stdexcept>
#include <utility>

// An effect that is given itself, its own record or an effect that only it keeps alive must not read what it has let go: each
// of these equals copying first.
namespace Catalogue
{
namespace
{

using BrushPackageSamples::Vibrance;
using Ombrel::PhotoCore::EffectsPackageWithBrushSettings;
using Ombrel::PhotoCore::FacePackageSettings;
using Ombrel::PhotoCore::SettingsEffectFacePackage;
using Ombrel::PhotoCore::SettingsEffectMaskBlender;
using Ombrel::PhotoCore::TileSettings;
using Support::List;

using EffectPtr = std::shared_ptr<IEffectSettings>;
using FaceItem = SettingsEffectFacePackage::FaceItem;

} // namespace

class OwnPartsTest : public CatalogueTest
{
protected:
    static std::shared_ptr<IEffectSettings> MakeSample()
    {
        const auto effect = Make();
        effect->Deserialize(SampleForm());
        return effect;
    }
};

TEST_P(OwnPartsTest, AddingItselfEqualsAddingACopy)
{
    const auto effect = MakeSample();
    const auto expected = MakeSample();
    expected->Add(*MakeSample());
    effect->Add(*effect);
    EXPECT_EQ(StoredForm(*effect), StoredForm(*expected));
}

TEST_P(OwnPartsTest, ItsOwnRecordChangesNothing)
{
    const auto effect = MakeSample();
    const PropertyTree before = StoredForm(*effect);
    if (GetParam().className == "EffectSettingsSimple") // it has no record
    {
        EXPECT_THROW(effect->SetEffectSettings(effect->GetEffectSettings()), std::logic_error);
    }
    else
    {
        effect->SetEffectSettings(effect->GetEffectSettings());
    }
    EXPECT_EQ(StoredForm(*effect), before);
}

TEST_P(OwnPartsTest, ComparesWithItself)
{
    const auto effect = MakeSample();
    EXPECT_EQ(*effect == *effect, GetParam().equalsItsCopy);
    EXPECT_TRUE(IEffectSettings::Equals(effect, effect));
    EXPECT_TRUE(effect->GetEffectSettings().IsEqualTo(effect->GetEffectSettings()));
}

INSTANTIATE_TEST_SUITE_P(All, OwnPartsTest, testing::ValuesIn(Catalogue::All()),
                         [](const auto& row) { return row.param.className; });

namespace
{

// The stored forms of what the tests below are made of.

PropertyTree VibranceForm(int strength)
{
    return Map({{"name", "EFFECT_VIBRANCE"}, {"strength", strength}});
}

PropertyTree FacesForm(int currentFace, std::initializer_list<PropertyTree> effects)
{
    PropertyTree items = List({});
    for (const PropertyTree& effect : effects)
    {
        items.append(Map({{"effect", effect}}));
    }
    return Map({{"currentFaceIndex", currentFace}, {"facesEffects", items}});
}

SettingsEffectFacePackage Faces(std::uint64_t currentFace, std::initializer_list<EffectPtr> effects)
{
    SettingsEffectFacePackage record;
    record.SetCurrentFace(currentFace);
    std::vector<FaceItem> items;
    for (const EffectPtr& effect : effects)
    {
        items.emplace_back().effect = effect;
    }
    record.SetFaces(items);
    return record;
}

// The second of its faces has a package of its own, which nobody else keeps alive.
FacePackageSettings NestedFaces()
{
    const auto inner = FacePackageSettings::Create(Faces(7, {Vibrance(2), Vibrance(3)}));
    return FacePackageSettings(Faces(5, {Vibrance(1), inner}));
}

const SettingsEffectFacePackage& InnerFaces(const FacePackageSettings& effect)
{
    return dynamic_cast<const FacePackageSettings&>(*effect.GetTypedSettings().GetFaces()[1].effect).GetTypedSettings();
}

TEST(OwnParts, FacesFromThePackagesOwnList)
{
    FacePackageSettings effect(Faces(5, {Vibrance(1), Vibrance(2)}));
    effect.GetTypedSettings().SetFaces(effect.GetTypedSettings().GetFaces());
    EXPECT_EQ(StoredForm(effect), FacesForm(5, {VibranceForm(1), VibranceForm(2)}));
}

TEST(OwnParts, FacesFromAPackageInThePackage)
{
    FacePackageSettings effect = NestedFaces();
    effect.GetTypedSettings().SetFaces(InnerFaces(effect).GetFaces());
    EXPECT_EQ(StoredForm(effect), FacesForm(5, {VibranceForm(2), VibranceForm(3)}));
}

TEST(OwnParts, AFacePackageFromOneInIt)
{
    FacePackageSettings effect = NestedFaces();
    effect.GetTypedSettings() = InnerFaces(effect);
    EXPECT_EQ(StoredForm(effect), FacesForm(7, {VibranceForm(2), VibranceForm(3)}));

    effect = NestedFaces();
    effect.GetTypedSettings() = std::move(const_cast<SettingsEffectFacePackage&>(InnerFaces(effect)));
    EXPECT_EQ(StoredForm(effect), FacesForm(7, {VibranceForm(2), VibranceForm(3)}));

    effect = NestedFaces();
    effect.SetEffectSettings(InnerFaces(effect));
    EXPECT_EQ(StoredForm(effect), FacesForm(7, {VibranceForm(2), VibranceForm(3)}));
}

TEST(OwnParts, AFaceFromOneInItsEffect)
{
    FaceItem item;
    item.effect = FacePackageSettings::Create(Faces(0, {Vibrance(2)}));
    item = dynamic_cast<const FacePackageSettings&>(*item.effect).GetTypedSettings().GetFaces()[0];
    EXPECT_EQ(StoredForm(*item.effect), Map({{"strength", 2}}));
}

PropertyTree BrushForm(int strength, const PropertyTree& foreground, const PropertyTree& background)
{
    return Map({{"backgroundEffects", background}, {"blendingStrength", strength}, {"foregroundEffects", foreground}});
}

SettingsEffectMaskBlender Brush(int strength, const IEffectSettings::ConstList& foreground,
                                const IEffectSettings::ConstList& background)
{
    SettingsEffectMaskBlender record;
    record.SetBlendingStrength(strength);
    record.SetForegroundEffects(foreground);
    record.SetBackgroundEffects(background);
    return record;
}

// Holds a package in each list, of which nobody else keeps either alive.
EffectsPackageWithBrushSettings NestedBrush()
{
    const auto inner = [](int first)
    {
        return EffectsPackageWithBrushSettings::Create(
            Brush(first, {Vibrance(first + 1)}, {Vibrance(first + 2), Vibrance(first + 3)}));
    };
    return EffectsPackageWithBrushSettings(Brush(9, {inner(10)}, {Vibrance(1), inner(20)}));
}

const SettingsEffectMaskBlender& InnerBrush(const IEffectSettings::ConstList& effects)
{
    return dynamic_cast<const EffectsPackageWithBrushSettings&>(*effects.back()).GetTypedSettings();
}

PropertyTree InnerBrushForm(int first)
{
    return BrushForm(first, List({VibranceForm(first + 1)}), List({VibranceForm(first + 2), VibranceForm(first + 3)}));
}

PropertyTree Named(PropertyTree form)
{
    form["name"] = "EffectsPackageOneInputWithBrush";
    return form;
}

TEST(OwnParts, EffectsFromTheBrushPackagesOwnLists)
{
    EffectsPackageWithBrushSettings effect(Brush(9, {Vibrance(1), Vibrance(2)}, {Vibrance(3)}));
    SettingsEffectMaskBlender& record = effect.GetTypedSettings();
    record.SetForegroundEffects(record.GetForegroundEffects());
    record.SetBackgroundEffects(record.GetBackgroundEffects());
    EXPECT_EQ(StoredForm(effect), BrushForm(9, List({VibranceForm(1), VibranceForm(2)}), List({VibranceForm(3)})));

    record.SetForegroundEffects(record.GetBackgroundEffects());
    record.SetBackgroundEffect(record.GetBackgroundEffects()[0]);
    EXPECT_EQ(StoredForm(effect), BrushForm(9, List({VibranceForm(3)}), List({VibranceForm(3)})));
}

TEST(OwnParts, EffectsFromABrushPackageInThePackage)
{
    EffectsPackageWithBrushSettings effect = NestedBrush();
    SettingsEffectMaskBlender& record = effect.GetTypedSettings();
    record.SetForegroundEffects(InnerBrush(record.GetForegroundEffects()).GetBackgroundEffects());
    EXPECT_EQ(StoredForm(effect),
              BrushForm(9, List({VibranceForm(12), VibranceForm(13)}), List({VibranceForm(1), Named(InnerBrushForm(20))})));
    record.SetBackgroundEffects(InnerBrush(record.GetBackgroundEffects()).GetForegroundEffects());
    EXPECT_EQ(StoredForm(effect), BrushForm(9, List({VibranceForm(12), VibranceForm(13)}), List({VibranceForm(21)})));
}

TEST(OwnParts, ABrushPackageFromOneInIt)
{
    for (const bool isBackground : {false, true})
    {
        const PropertyTree expected = InnerBrushForm(isBackground ? 20 : 10);
        const auto inner = [isBackground](const EffectsPackageWithBrushSettings& effect) -> const SettingsEffectMaskBlender&
        {
            const SettingsEffectMaskBlender& record = effect.GetTypedSettings();
            return InnerBrush(isBackground ? record.GetBackgroundEffects() : record.GetForegroundEffects());
        };
        EffectsPackageWithBrushSettings effect = NestedBrush();
        effect.GetTypedSettings() = inner(effect);
        EXPECT_EQ(StoredForm(effect), expected);

        effect = NestedBrush();
        effect.GetTypedSettings() = std::move(const_cast<SettingsEffectMaskBlender&>(inner(effect)));
        EXPECT_EQ(StoredForm(effect), expected);

        effect = NestedBrush();
        effect.SetEffectSettings(inner(effect));
        EXPECT_EQ(StoredForm(effect), expected);
    }
}

TEST(OwnParts, ATileFromOneInIt)
{
    const PropertyTree expected = Map({{"post", List({VibranceForm(2)})}, {"pre", List({VibranceForm(1)})}});
    TileSettings inner;
    inner.Pre() = {Vibrance(1)};
    inner.Post() = {Vibrance(2)};
    TileSettings tile(1, 1);
    for (IEffectSettings::List* list : {&tile.Pre(), &tile.Post(), &tile.Effect(0, 0)})
    {
        *list = {std::make_shared<TileSettings>(inner)};
    }
    for (const auto choose :
         {+[](TileSettings& outer) { return &outer.Pre(); }, +[](TileSettings& outer) { return &outer.Post(); },
          +[](TileSettings& outer) { return &outer.Effect(0, 0); }})
    {
        TileSettings outer = tile;
        outer = dynamic_cast<const TileSettings&>(*choose(outer)->front());
        EXPECT_EQ(StoredForm(outer), expected);
    }
}

// Stands for an effect that could not be made when its tree was read, and keeps the tree to try again.
class Placeholder : public Ombrel::PhotoCore::EmptySettings
{
public:
    PropertyTree m_tree = VibranceForm(6);
};

TEST(OwnParts, AnEffectFromTheTreeOfTheOneItReplaces)
{
    auto placeholder = std::make_shared<Placeholder>();
    const PropertyTree& tree = placeholder->m_tree;
    EffectPtr effect = std::move(placeholder);
    EffectSettings::DeserializePtr(tree, effect);
    EXPECT_EQ(StoredForm(*effect), Map({{"strength", 6}}));
}

} // namespace
} // namespace Catalogue
