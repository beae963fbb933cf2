#include "Proc/Reflection/Schema.h"
#include "support/AllClasses.h"

#include <gtest/gtest.h>

#include <cctype>
#include <set>
#include <string>
#include <string_view>

// How the fields of records are reached: what a record keeps to itself by its setter and getter, all else as members.
namespace
{

using namespace Ombrel::Proc;

// Every key of these records is a property. Of a record that is not listed here a key may be either, but is nothing else.
const std::set<std::string_view> RECORDS_OF_PROPERTIES{
    "SettingsColorspaceConverter",
    "SettingsEffectBlur",
    "SettingsEffectColorBalance",
    "SettingsEffectColorChannelMixer",
    "SettingsEffectColorFilter",
    "SettingsEffectColorMixBurn",
    "SettingsEffectCrop",
    "SettingsEffectDenoiseChromaLuma",
    "SettingsEffectDenoiseDCT",
    "SettingsEffectDenoiseOvercompleteWavelet",
    "SettingsEffectEdgeDetect",
    "SettingsEffectEmboss",
    "SettingsEffectFishEye",
    "SettingsEffectFlip",
    "SettingsEffectGIMPColorCorrection",
    "SettingsEffectGIMPColorTemperature",
    "SettingsEffectGIMPColorize",
    "SettingsEffectGIMPHueSaturation",
    "SettingsEffectGIMPShadowsHightlights",
    "SettingsEffectHalfTone",
    "SettingsEffectImageBlender",
    "SettingsEffectLightLeaks",
    "SettingsEffectNegateVideo",
    "SettingsEffectNoiseVideo",
    "SettingsEffectOilPaint",
    "SettingsEffectPopArt",
    "SettingsEffectPosterize",
    "SettingsEffectRetroArtefacts",
    "SettingsEffectRetroColors",
    "SettingsEffectRotate",
    "SettingsEffectSharpen",
    "SettingsEffectSmartBlur",
    "SettingsEffectTranspose",
    "SettingsEffectVignetteFilter",
};

// Setters that belong to a field list alone: the reference names the getter.
const std::set<std::string_view> SET_OTHERWISE{
    "SettingsColorspaceConverter.padColorR", "SettingsColorspaceConverter.padColorG",
    "SettingsColorspaceConverter.padColorB", "SettingsColorspaceConverter.requiredFormats",
    "SettingsEffectImageBlender.alpha",      "SettingsEffectImageBlender.blendingMode",
};

std::string WithCapital(std::string_view key)
{
    std::string text(key);
    text[0] = static_cast<char>(std::toupper(text[0]));
    return text;
}

TEST(Access, IsBySetterAndGetterOrByMember)
{
    std::size_t properties = 0;
    Support::ForEach<Support::Records>(
        [&properties]<class Record>()
        {
            if constexpr (requires { Record::Schema(); })
            {
                const RecordSchema& schema = Record::Schema();
                const bool isOfProperties = RECORDS_OF_PROPERTIES.contains(schema.name);
                for (const FieldSchema& field : schema.fields)
                {
                    const std::string place = std::string(schema.name) + "." + std::string(field.key);
                    const std::string name = WithCapital(field.key);
                    if (!isOfProperties)
                    {
                        EXPECT_TRUE(field.access == "m_" + std::string(field.key) || field.access == field.key ||
                                    field.access == "Set" + name + ", Get" + name)
                            << place;
                    }
                    else if (SET_OTHERWISE.contains(place))
                    {
                        EXPECT_EQ(field.access, "Get" + name) << place;
                    }
                    else if (place == "SettingsEffectPosterize.colors")
                    {
                        EXPECT_EQ(field.access, "SetColorsNumber, GetColorsNumber");
                    }
                    else if (schema.name == "SettingsEffectColorChannelMixer")
                    {
                        EXPECT_EQ(field.access, "SetFactor, GetFactor") << place;
                    }
                    else
                    {
                        const std::string shortName = name.substr(0, name.find("Master")); // a range of the setter's
                        EXPECT_EQ(field.access, "Set" + shortName + ", Get" + shortName) << place;
                    }
                    properties += isOfProperties ? 1 : 0;
                }
            }
        });
    EXPECT_EQ(properties, 162u);
}

} // namespace
