#include "Proc/EffectSettings/ColorspaceConverterSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string_view>
#include <utility>
#include <vector>

namespace
{

using Ombrel::PixFmt;
using Ombrel::PropertyTree;
using Ombrel::PhotoCore::ColorspaceConverterSettings;
using Ombrel::Proc::SettingsColorspaceConverter;
using Ombrel::Proc::SettingsPixelFormatConverter;
using Support::List;
using Support::Map;
using Support::Restored;
using Support::StoredForm;

using Formats = std::vector<PixFmt>;

ColorspaceConverterSettings WithBgr24()
{
    return ColorspaceConverterSettings(SettingsColorspaceConverter().AddPixFmt(PixFmt::BGR24));
}

TEST(ColorspaceConverter, ReadingExtendsTheFormats)
{
    ColorspaceConverterSettings effect = WithBgr24();
    effect.Deserialize(Map({{"requiredFormats", List({"RGB24"})}}));
    EXPECT_EQ(effect.GetTypedSettings().GetRequiredFormats(), (Formats{PixFmt::BGR24, PixFmt::RGB24}));
}

TEST(ColorspaceConverter, SettingThePropertyExtendsTheFormats)
{
    ColorspaceConverterSettings effect = WithBgr24();
    effect.GetPropertyAccess()->SetProperty("requiredFormats", List({"RGB24"}));
    EXPECT_EQ(effect.GetTypedSettings().GetRequiredFormats(), (Formats{PixFmt::BGR24, PixFmt::RGB24}));
}

TEST(ColorspaceConverter, AFreshObjectHasTheListOfTheTree)
{
    const PropertyTree tree = Map({{"requiredFormats", List({"YUV420P", "_0RGB", "NV12"})}});
    const auto effect = Restored<ColorspaceConverterSettings>(tree);
    EXPECT_EQ(effect.GetTypedSettings().GetRequiredFormats(), (Formats{PixFmt::YUV420P, PixFmt::_0RGB, PixFmt::NV12}));
    EXPECT_EQ(StoredForm(effect), tree);
}

TEST(ColorspaceConverter, AMissingKeyAddsTheEmptyDefault)
{
    ColorspaceConverterSettings effect = WithBgr24();
    effect.GetTypedSettings().SetPadColor(1, 2, 3);
    effect.GetTypedSettings().SetHasAlpha(true);
    effect.Deserialize(Map({}));
    EXPECT_EQ(StoredForm(effect), Map({{"requiredFormats", List({"BGR24"})}}));
}

TEST(ColorspaceConverter, WhatIsNoListAddsNothing)
{
    for (const PropertyTree& other : {PropertyTree("RGB24"), PropertyTree(2), Map({{"0", "RGB24"}}), PropertyTree()})
    {
        ColorspaceConverterSettings effect = WithBgr24();
        effect.Deserialize(Map({{"requiredFormats", other}}));
        EXPECT_EQ(effect.GetTypedSettings().GetRequiredFormats(), Formats{PixFmt::BGR24});
    }
}

TEST(ColorspaceConverter, KeepsRepeatedFormats)
{
    const PropertyTree tree = Map({{"requiredFormats", List({"RGB24", "BGRA", "RGB24"})}});
    EXPECT_EQ(StoredForm(Restored<ColorspaceConverterSettings>(tree)), tree);
}

TEST(ColorspaceConverter, ReadsAnUnknownFormatAsNone)
{
    const auto effect = Restored<ColorspaceConverterSettings>(Map({{"requiredFormats", List({"rgb24", Map({}), "BGR24"})}}));
    EXPECT_EQ(effect.GetTypedSettings().GetRequiredFormats(),
              (Formats{static_cast<PixFmt>(-1), static_cast<PixFmt>(-1), PixFmt::BGR24}));
    EXPECT_EQ(StoredForm(effect), Map({{"requiredFormats", List({"None", "None", "BGR24"})}}));
}

TEST(ColorspaceConverter, AFailingElementAddsNothing)
{
    ColorspaceConverterSettings effect = WithBgr24();
    EXPECT_THROW(effect.Deserialize(Map({{"requiredFormats", List({"RGB24", 2})}})), std::invalid_argument);
    EXPECT_EQ(effect.GetTypedSettings().GetRequiredFormats(), Formats{PixFmt::BGR24});
}

TEST(ColorspaceConverter, AddingAFormatReturnsTheRecord)
{
    SettingsColorspaceConverter record;
    EXPECT_EQ(&record.AddPixFmt(PixFmt::RGB24).AddPixFmt(PixFmt::RGB24), &record);
    EXPECT_EQ(record.GetRequiredFormats(), (Formats{PixFmt::RGB24, PixFmt::RGB24}));

    SettingsPixelFormatConverter& base = record;
    EXPECT_EQ(&base.AddPixFmt(PixFmt::BGRA), &record);
    EXPECT_EQ(record.GetRequiredFormats(), (Formats{PixFmt::RGB24, PixFmt::RGB24, PixFmt::BGRA}));
}

TEST(ColorspaceConverter, CutsAPadColourToItsByte)
{
    const auto effect = Restored<ColorspaceConverterSettings>(Map({{"padColorR", 300}, {"padColorG", -1}, {"padColorB", 256}}));
    EXPECT_EQ(effect.GetTypedSettings().GetPadColorR(), 44);
    EXPECT_EQ(effect.GetTypedSettings().GetPadColorG(), 255);
    EXPECT_EQ(effect.GetTypedSettings().GetPadColorB(), 0);
    EXPECT_EQ(StoredForm(effect), Map({{"padColorR", 44}, {"padColorG", 255}}));
}

TEST(ColorspaceConverter, ComposesThePadColourChannelByChannel)
{
    ColorspaceConverterSettings effect;
    effect.GetTypedSettings().SetPadColor(1, 2, 3);
    EXPECT_EQ(StoredForm(effect), Map({{"padColorR", 1}, {"padColorG", 2}, {"padColorB", 3}}));

    effect.GetPropertyAccess()->SetProperty("padColorR", 10);
    EXPECT_EQ(StoredForm(effect), Map({{"padColorR", 10}, {"padColorG", 2}, {"padColorB", 3}}));
    effect.GetPropertyAccess()->SetProperty("padColorG", 20);
    EXPECT_EQ(StoredForm(effect), Map({{"padColorR", 10}, {"padColorG", 20}, {"padColorB", 3}}));
    effect.GetPropertyAccess()->SetProperty("padColorB", 30);
    EXPECT_EQ(StoredForm(effect), Map({{"padColorR", 10}, {"padColorG", 20}, {"padColorB", 30}}));
}

TEST(ColorspaceConverter, KeysReachTheirFlags)
{
    using Getter = bool (SettingsPixelFormatConverter::*)() const;
    constexpr std::pair<const char*, Getter> flags[] = {
        {"hasAlpha", &SettingsPixelFormatConverter::GetHasAlpha},
        {"multiplyAlpha", &SettingsPixelFormatConverter::GetMultiplyAlpha},
        {"forceDropAlpha", &SettingsPixelFormatConverter::GetForceDropAlpha},
    };
    for (const auto& [key, getter] : flags)
    {
        const auto effect = Restored<ColorspaceConverterSettings>(Map({{key, true}}));
        for (const auto& [otherKey, otherGetter] : flags)
        {
            EXPECT_EQ((effect.GetTypedSettings().*otherGetter)(), std::string_view(otherKey) == key) << key << ", " << otherKey;
        }
    }
}

TEST(ColorspaceConverter, AnyValueEndsTheEmptinessOfTheRecord)
{
    EXPECT_TRUE(SettingsColorspaceConverter().IsEmpty());
    for (const char* key : {"padColorR", "padColorG", "padColorB"})
    {
        EXPECT_FALSE(Restored<ColorspaceConverterSettings>(Map({{key, 1}})).GetTypedSettings().IsEmpty()) << key;
    }
    for (const char* key : {"hasAlpha", "multiplyAlpha", "forceDropAlpha"})
    {
        EXPECT_FALSE(Restored<ColorspaceConverterSettings>(Map({{key, true}})).GetTypedSettings().IsEmpty()) << key;
    }
}

TEST(ColorspaceConverter, ComparesFormatsInTheirOrder)
{
    const auto rgbFirst = SettingsColorspaceConverter().AddPixFmt(PixFmt::RGB24).AddPixFmt(PixFmt::BGRA);
    const auto bgraFirst = SettingsColorspaceConverter().AddPixFmt(PixFmt::BGRA).AddPixFmt(PixFmt::RGB24);
    EXPECT_FALSE(rgbFirst == bgraFirst);
    EXPECT_TRUE(rgbFirst == SettingsColorspaceConverter(rgbFirst));
    EXPECT_FALSE(rgbFirst.IsEmpty());
}

} // namespace
