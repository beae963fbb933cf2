#include "Proc/EffectSettings/EffectSettingsSimple.h"
#include "Proc/EffectSettings/EffectsPackageWithBrushSettings.h"
#include "Proc/EffectSettings/FacePackageSettings.h"
#include "Proc/EffectSettings/TileSettings.h"
#include "catalogue/CatalogueFixture.h"

#include <memory>
#include <ostream>
#include <stdexcept>
#include <typeinfo>
#include <utility>
#include <vector>

// What a stored list may hold and no editor puts there: no effect, a simple effect without a record, a ragged grid. Nothing
// that an effect can be asked for may follow the pointer that is not there.
namespace Catalogue
{
namespace
{

using Ombrel::PhotoCore::EffectSettingsSimple;
using Ombrel::PhotoCore::EffectsPackageWithBrushSettings;
using Ombrel::PhotoCore::FacePackageSettings;
using Ombrel::PhotoCore::SettingsEffectFacePackage;
using Ombrel::PhotoCore::TileSettings;
using Support::List;

using EffectPtr = std::shared_ptr<IEffectSettings>;

EffectPtr Read(const PropertyTree& tree)
{
    EffectPtr effect;
    EffectSettings::DeserializePtr(tree, effect);
    return effect;
}

// A row of two cells, a row without cells, a row of one cell; nulls in every list.
PropertyTree RaggedForm()
{
    return Map({{"effectRows", List({Map({{"cols", List({List({PropertyTree()}), List({})})}}), Map({}),
                                     Map({{"cols", List({List({PropertyTree(), PropertyTree()})})}})})},
                {"name", "effectSettingsTileStub"},
                {"post", List({PropertyTree(), PropertyTree()})},
                {"pre", List({PropertyTree()})}});
}

// What stands in a list.
struct Content
{
    const char* name;
    PropertyTree form;
    bool equalsACopy;
    bool hasEmptyRecord; // or none
};

const Content CONTENTS[] = {
    {"Null", PropertyTree(), true, true},
    {"SimpleWithoutRecord", Map({{"name", "effectSettingsSimple"}}), false, true},
    {"RaggedGrid", RaggedForm(), true, false},
};

enum class Comparison
{
    Effects,  // clones are compared, each with `==`
    Pointers, // clones are compared, with themselves by their pointers
    Shared,   // copies share their effects
};

// A list to stand in: how an effect gets there, and what the holder then is stored as.
struct Holder
{
    const char* name;
    EffectPtr (*make)(const EffectPtr& effect);
    PropertyTree (*form)(const PropertyTree& effect);
    Comparison comparison;
    bool isEmptyWithEmptyRecords;
};

EffectPtr Tile(IEffectSettings::List& (*listOf)(TileSettings&), const EffectPtr& effect)
{
    const auto tile = TileSettings::Create(0, 0);
    listOf(*tile) = {effect};
    return tile;
}

IEffectSettings::List& Cell(TileSettings& tile)
{
    tile.SetSize(1, 1);
    return tile.Effect(0, 0);
}

EffectPtr FacePackage(const EffectPtr& effect)
{
    std::vector<SettingsEffectFacePackage::FaceItem> faces(1);
    faces[0].effect = effect;
    return FacePackageSettings::Create({0, std::move(faces)});
}

using SetEffects = void (Ombrel::PhotoCore::SettingsEffectMaskBlender::*)(const IEffectSettings::ConstList&);

EffectPtr BrushPackage(SetEffects set, const EffectPtr& effect)
{
    const auto package = std::make_shared<EffectsPackageWithBrushSettings>();
    (package->GetTypedSettings().*set)({effect});
    return package;
}

PropertyTree Named(const char* classId, const char* key, const PropertyTree& value)
{
    return Map({{"name", classId}, {key, value}});
}

const Holder HOLDERS[] = {
    {"Pre",
     [](const EffectPtr& effect)
     {
         return Tile(
             [](TileSettings & tile) -> auto& { return tile.Pre(); }, effect);
     },
     [](const PropertyTree& effect) { return Named("effectSettingsTileStub", "pre", List({effect})); }, Comparison::Effects,
     false},
    {"Post",
     [](const EffectPtr& effect)
     {
         return Tile(
             [](TileSettings & tile) -> auto& { return tile.Post(); }, effect);
     },
     [](const PropertyTree& effect) { return Named("effectSettingsTileStub", "post", List({effect})); }, Comparison::Effects,
     false},
    {"Cell", [](const EffectPtr& effect) { return Tile(&Cell, effect); },
     [](const PropertyTree& effect) {
         return Named("effectSettingsTileStub", "effectRows", List({Map({{"cols", List({List({effect})})}})}));
     },
     Comparison::Effects, false},
    {"Face", &FacePackage,
     [](const PropertyTree& effect) {
         return Named("SettingsEffectFacePackage", "facesEffects",
                      List({effect.isNull() ? Map({}) : Map({{"effect", effect}})}));
     },
     Comparison::Pointers, false},
    {"Foreground",
     [](const EffectPtr& effect)
     { return BrushPackage(&Ombrel::PhotoCore::SettingsEffectMaskBlender::SetForegroundEffects, effect); },
     [](const PropertyTree& effect) { return Named("EffectsPackageOneInputWithBrush", "foregroundEffects", List({effect})); },
     Comparison::Shared, true},
    {"Background",
     [](const EffectPtr& effect)
     { return BrushPackage(&Ombrel::PhotoCore::SettingsEffectMaskBlender::SetBackgroundEffects, effect); },
     [](const PropertyTree& effect) { return Named("EffectsPackageOneInputWithBrush", "backgroundEffects", List({effect})); },
     Comparison::Shared, true},
};

using Pair = std::tuple<Holder, Content>;

void PrintTo(const Holder& holder, std::ostream* out)
{
    *out << holder.name;
}

void PrintTo(const Content& content, std::ostream* out)
{
    *out << content.name;
}

PropertyTree NamedForm(const EffectPtr& effect)
{
    PropertyTree tree;
    EffectSettings::SerializePtr(tree, effect);
    return tree;
}

class NullEffectsTest : public testing::TestWithParam<Pair>
{
protected:
    const Holder& GetHolder() const { return std::get<0>(GetParam()); }
    const Content& GetContent() const { return std::get<1>(GetParam()); }
    EffectPtr MakeHolder() const { return GetHolder().make(Read(GetContent().form)); }
    PropertyTree Expected() const { return GetHolder().form(GetContent().form); }
};

TEST_P(NullEffectsTest, IsWrittenAndReadBack)
{
    const EffectPtr effect = MakeHolder();
    EXPECT_EQ(NamedForm(effect), Expected());
    EXPECT_EQ(NamedForm(Read(Expected())), Expected());
}

TEST_P(NullEffectsTest, IsCopied)
{
    const EffectPtr effect = MakeHolder();
    EXPECT_EQ(NamedForm(effect->Clone()), Expected());

    const EffectPtr receiver = Read(Expected());
    receiver->SetEffectSettings(effect->GetEffectSettings());
    EXPECT_EQ(NamedForm(receiver), Expected());
    receiver->Add(*effect);
    EXPECT_EQ(NamedForm(receiver), Expected());
}

TEST_P(NullEffectsTest, IsCompared)
{
    const EffectPtr effect = MakeHolder();
    const bool isAlike = GetContent().equalsACopy;
    const Comparison comparison = GetHolder().comparison;
    EXPECT_EQ(*effect == *effect, isAlike || comparison != Comparison::Effects);
    EXPECT_EQ(*effect == *effect->Clone(), isAlike || comparison == Comparison::Shared);
    EXPECT_EQ(*effect == *Read(Expected()), isAlike);
    EXPECT_EQ(*effect != *Read(Expected()), !isAlike);
    EXPECT_EQ(IEffectSettings::Equals(effect, Read(Expected())), isAlike);
    EXPECT_EQ(IEffectSettings::Equal({nullptr, effect}, {nullptr, Read(Expected())}), isAlike);

    for (const Content& other : CONTENTS)
    {
        if (other.name != GetContent().name)
        {
            EXPECT_FALSE(*effect == *GetHolder().make(Read(other.form))) << other.name;
            EXPECT_FALSE(*GetHolder().make(Read(other.form)) == *effect) << other.name;
        }
    }
}

TEST_P(NullEffectsTest, IsAskedWhetherItIsEmpty)
{
    const EffectPtr effect = MakeHolder();
    const bool isEmpty = GetHolder().isEmptyWithEmptyRecords && GetContent().hasEmptyRecord;
    EXPECT_EQ(effect->IsEmpty(), isEmpty);
    EXPECT_EQ(effect->GetEffectSettings().IsEmpty(), isEmpty);
}

TEST_P(NullEffectsTest, IsPassedOverInALookUp)
{
    const EffectPtr effect = MakeHolder();
    const EffectPtr content = Read(GetContent().form);
    const IEffectSettings::List list{nullptr, content, nullptr, effect};
    const bool isAlike = content && content->GetClassId() == effect->GetClassId();
    EXPECT_EQ(IEffectSettings::Find(list, effect->GetClassId()), isAlike ? content : effect);
    EXPECT_EQ(IEffectSettings::Find(IEffectSettings::ToConstList(list), effect->GetClassId()), isAlike ? content : effect);
    EXPECT_FALSE(IEffectSettings::Find(list, "EFFECT_ACID"));
    EXPECT_FALSE(IEffectSettings::Find(list, ""));
    EXPECT_EQ(IEffectSettings::Find(list, "effectSettingsSimple") != nullptr,
              GetContent().name == std::string("SimpleWithoutRecord"));
}

TEST_P(NullEffectsTest, IsShownAndTakenAsAProperty)
{
    const EffectPtr effect = MakeHolder();
    const auto access = effect->GetPropertyAccess();
    if (!access)
    {
        EXPECT_EQ(GetHolder().comparison, Comparison::Effects); // a tile has none
        return;
    }
    const EffectPtr receiver = effect->Clone();
    for (const std::string& key : access->ListProperties())
    {
        const PropertyTree value = access->GetProperty(key);
        receiver->GetPropertyAccess()->SetProperty(key, value);
        EXPECT_EQ(receiver->GetPropertyAccess()->GetProperty(key), value) << key;
    }
    EXPECT_EQ(NamedForm(receiver), Expected());
}

// In a list of an effect in a list of an effect.
TEST_P(NullEffectsTest, StandsAtAnyDepth)
{
    for (const Holder& outer : HOLDERS)
    {
        SCOPED_TRACE(outer.name);
        const EffectPtr effect = outer.make(MakeHolder());
        const PropertyTree expected = outer.form(Expected());
        EXPECT_EQ(NamedForm(effect), expected);
        EXPECT_EQ(NamedForm(effect->Clone()), expected);
        const EffectPtr restored = Read(expected);
        EXPECT_EQ(NamedForm(restored), expected);
        EXPECT_EQ(*effect == *restored, GetContent().equalsACopy);
    }
}

INSTANTIATE_TEST_SUITE_P(All, NullEffectsTest, testing::Combine(testing::ValuesIn(HOLDERS), testing::ValuesIn(CONTENTS)),
                         [](const auto& row)
                         { return std::string(std::get<0>(row.param).name) + "Of" + std::get<1>(row.param).name; });

} // namespace

class NoRecordTest : public CatalogueTest
{
};

TEST_P(NoRecordTest, MeetsEveryClass)
{
    const auto effect = Make();
    const EffectPtr made = EffectSettingsSimple::CreateBase();
    IEffectSettings& simple = *made;
    EXPECT_FALSE(*effect == simple);
    EXPECT_FALSE(simple == *effect);
    EXPECT_NO_THROW(simple.Add(*effect));
    EXPECT_THROW(simple.SetEffectSettings(effect->GetEffectSettings()), std::logic_error);
    if (GetParam().className == "EffectSettingsSimple") // the one that takes anything and does nothing
    {
        EXPECT_NO_THROW(effect->Add(simple));
        EXPECT_THROW(effect->SetEffectSettings(simple.GetEffectSettings()), std::logic_error);
    }
    else
    {
        EXPECT_THROW(effect->Add(simple), std::bad_cast);
        EXPECT_THROW(effect->SetEffectSettings(simple.GetEffectSettings()), std::bad_cast);
        EXPECT_THROW(effect->GetEffectSettings().IsEqualTo(simple.GetEffectSettings()), std::bad_cast);
    }
    EXPECT_EQ(StoredForm(*effect), DefaultTree());
}

INSTANTIATE_TEST_SUITE_P(All, NoRecordTest, testing::ValuesIn(Catalogue::All()),
                         [](const auto& row) { return row.param.className; });

} // namespace Catalogue
