#include "Proc/EffectSettings/BlendSettings.h"
#include "Proc/EffectSettings/BlurSettings.h"
#include "Proc/EffectSettings/ColorFilterSettings.h"
#include "Proc/EffectSettings/CropSettings.h"
#include "Proc/EffectSettings/DenoiseChromaLumaSettings.h"
#include "Proc/EffectSettings/DenoiseDCTSettings.h"
#include "Proc/EffectSettings/DenoiseOvercompleteWaveletSettings.h"
#include "Proc/EffectSettings/EdgeDetectSettings.h"
#include "Proc/EffectSettings/EmbossSettings.h"
#include "Proc/EffectSettings/FlipSettings.h"
#include "Proc/EffectSettings/GIMPColorCorrectionSettings.h"
#include "Proc/EffectSettings/GIMPColorTemperatureSettings.h"
#include "Proc/EffectSettings/GIMPColorizeSettings.h"
#include "Proc/EffectSettings/GIMPShadowsHightlightsSettings.h"
#include "Proc/EffectSettings/HalfToneSettings.h"
#include "Proc/EffectSettings/NoiseVideoSettings.h"
#include "Proc/EffectSettings/PopArtSettings.h"
#include "Proc/EffectSettings/PosterizeSettings.h"
#include "Proc/EffectSettings/RetroArtefactsSettings.h"
#include "Proc/EffectSettings/RetroColorsSettings.h"
#include "Proc/EffectSettings/RotateSettings.h"
#include "Proc/EffectSettings/VignetteFilterSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <cstdint>

// The setters and getters of records that keep their members to themselves. The stored form passes by those that only store
// and load, so that nothing else says which value they mean.
namespace
{

using namespace Ombrel::PhotoCore;
using namespace Ombrel::Proc;
using Ombrel::PixFmt;
using Ombrel::PropertyTree;
using Support::Map;
using Support::StoredForm;

constexpr std::int32_t WHOLE = -73;
constexpr double FRACTION = 0.375;
constexpr RgbaColor BLUE{0, 0, 255, 255};

// `value` is no default of the record: it is seen under `key` alone, and the getter shows no other value.
template <class Effect, class Record, class Given, class Shown, class Value>
void ExpectAccess(const char* key, void (Record::*setter)(Given), Shown (Record::*getter)() const, const Value& value,
                  const PropertyTree& stored)
{
    Effect effect;
    EXPECT_NE((effect.GetTypedSettings().*getter)(), value) << key;
    (effect.GetTypedSettings().*setter)(value);
    EXPECT_EQ(StoredForm(effect), Map({{key, stored}})) << key;
    EXPECT_EQ((effect.GetTypedSettings().*getter)(), value) << key;
}

template <class Effect, class Record, class Value>
void ExpectNumber(const char* key, void (Record::*setter)(Value), Value (Record::*getter)() const, Value value)
{
    ExpectAccess<Effect>(key, setter, getter, value, value);
}

TEST(RecordAccessors, OfBlur)
{
    using R = SettingsEffectBlur;
    ExpectAccess<BlurSettings>("algorithm", &R::SetAlgorithm, &R::GetAlgorithm, R::Algorithm::Median, "Median");
    ExpectAccess<BlurSettings>("scaleType", &R::SetScaleType, &R::GetScaleType, R::BlurScaleType::RelativeMin, "RelativeMin");
    ExpectAccess<BlurSettings>("pixelFormat", &R::SetPixelFormat, &R::GetPixelFormat, PixFmt::BGRA, "BGRA");
    ExpectNumber<BlurSettings>("kernelLength", &R::SetKernelLength, &R::GetKernelLength, WHOLE);
    ExpectNumber<BlurSettings>("iterations", &R::SetIterations, &R::GetIterations, WHOLE);
    ExpectNumber<BlurSettings>("planesMask", &R::SetPlanesMask, &R::GetPlanesMask, WHOLE);
    ExpectNumber<BlurSettings>("devX", &R::SetDevX, &R::GetDevX, FRACTION);
    ExpectNumber<BlurSettings>("devY", &R::SetDevY, &R::GetDevY, FRACTION);
    ExpectNumber<BlurSettings>("scaleX", &R::SetScaleX, &R::GetScaleX, FRACTION);
    ExpectNumber<BlurSettings>("scaleY", &R::SetScaleY, &R::GetScaleY, FRACTION);
}

TEST(RecordAccessors, OfDenoiseChromaLuma)
{
    using R = SettingsEffectDenoiseChromaLuma;
    using Effect = DenoiseChromaLumaSettings;
    ExpectNumber<Effect>("lumaStrength", &R::SetLumaStrength, &R::GetLumaStrength, FRACTION);
    ExpectNumber<Effect>("chromaStrength", &R::SetChromaStrength, &R::GetChromaStrength, FRACTION);
    ExpectNumber<Effect>("lumaStrengthTemporal", &R::SetLumaStrengthTemporal, &R::GetLumaStrengthTemporal, FRACTION);
    ExpectNumber<Effect>("chromaStrengthTemporal", &R::SetChromaStrengthTemporal, &R::GetChromaStrengthTemporal, FRACTION);
}

TEST(RecordAccessors, OfDenoiseDCT)
{
    using R = SettingsEffectDenoiseDCT;
    ExpectNumber<DenoiseDCTSettings>("sigma", &R::SetSigma, &R::GetSigma, FRACTION);
    ExpectNumber<DenoiseDCTSettings>("overlapSize", &R::SetOverlapSize, &R::GetOverlapSize, WHOLE);
    ExpectNumber<DenoiseDCTSettings>("blockSizeBits", &R::SetBlockSizeBits, &R::GetBlockSizeBits, WHOLE);
}

TEST(RecordAccessors, OfDenoiseOvercompleteWavelet)
{
    using R = SettingsEffectDenoiseOvercompleteWavelet;
    using Effect = DenoiseOvercompleteWaveletSettings;
    ExpectNumber<Effect>("depth", &R::SetDepth, &R::GetDepth, WHOLE);
    ExpectNumber<Effect>("lumaStrength", &R::SetLumaStrength, &R::GetLumaStrength, FRACTION);
    ExpectNumber<Effect>("chromaStrength", &R::SetChromaStrength, &R::GetChromaStrength, FRACTION);
}

TEST(RecordAccessors, OfNoiseVideo)
{
    using R = SettingsEffectNoiseVideo;
    ExpectAccess<NoiseVideoSettings>("method", &R::SetMethod, &R::GetMethod, R::Method::Poisson, "Poisson");
    ExpectNumber<NoiseVideoSettings>("seed", &R::SetSeed, &R::GetSeed, WHOLE);
    ExpectNumber<NoiseVideoSettings>("strength", &R::SetStrength, &R::GetStrength, WHOLE);
}

TEST(RecordAccessors, OfEdgeDetect)
{
    using R = SettingsEffectEdgeDetect;
    ExpectAccess<EdgeDetectSettings>("mode", &R::SetMode, &R::GetMode, R::EdgeDetectMode::Colormix, "Colormix");
    ExpectNumber<EdgeDetectSettings>("lowThreshold", &R::SetLowThreshold, &R::GetLowThreshold, FRACTION);
    ExpectNumber<EdgeDetectSettings>("highThreshold", &R::SetHighThreshold, &R::GetHighThreshold, FRACTION);
}

TEST(RecordAccessors, OfEmboss)
{
    using R = SettingsEffectEmboss;
    ExpectNumber<EmbossSettings>("x", &R::SetX, &R::GetX, WHOLE);
    ExpectNumber<EmbossSettings>("y", &R::SetY, &R::GetY, WHOLE);
    ExpectNumber<EmbossSettings>("colored", &R::SetColored, &R::GetColored, true);
}

TEST(RecordAccessors, OfCrop)
{
    using R = SettingsEffectCrop;
    ExpectNumber<CropSettings>("x", &R::SetX, &R::GetX, WHOLE);
    ExpectNumber<CropSettings>("y", &R::SetY, &R::GetY, WHOLE);
    ExpectNumber<CropSettings>("width", &R::SetWidth, &R::GetWidth, WHOLE);
    ExpectNumber<CropSettings>("height", &R::SetHeight, &R::GetHeight, WHOLE);
}

TEST(RecordAccessors, OfFlip)
{
    using R = SettingsEffectFlip;
    ExpectNumber<FlipSettings>("horizontal", &R::SetHorizontal, &R::GetHorizontal, true);
    ExpectNumber<FlipSettings>("vertical", &R::SetVertical, &R::GetVertical, true);
}

TEST(RecordAccessors, OfRotate)
{
    using R = SettingsEffectRotate;
    ExpectAccess<RotateSettings>("outputSizeMode", &R::SetOutputSizeMode, &R::GetOutputSizeMode,
                                 R::OutputSizeMode::enOutputSizeCrop, "enOutputSizeCrop");
    ExpectNumber<RotateSettings>("angle", &R::SetAngle, &R::GetAngle, FRACTION);
    ExpectNumber<RotateSettings>("width", &R::SetWidth, &R::GetWidth, WHOLE);
    ExpectNumber<RotateSettings>("height", &R::SetHeight, &R::GetHeight, WHOLE);
    ExpectNumber<RotateSettings>("isBilinear", &R::SetIsBilinear, &R::GetIsBilinear, true);
    ExpectAccess<RotateSettings>("color", &R::SetColor, &R::GetColor, RgbaColor{18, 171, 86, 205}, "12ab56cd");
}

TEST(RecordAccessors, OfBlend)
{
    using R = SettingsEffectColorBlender;
    ExpectNumber<BlendSettings>("positionX", &R::SetPositionX, &R::GetPositionX, WHOLE);
    ExpectNumber<BlendSettings>("positionY", &R::SetPositionY, &R::GetPositionY, WHOLE);
}

TEST(RecordAccessors, OfHalfTone)
{
    using R = SettingsEffectHalfTone;
    using Effect = HalfToneSettings;
    ExpectAccess<Effect>("backgroundColor", &R::SetBackgroundColor, &R::GetBackgroundColor, BLUE, "0000ffff");
    ExpectAccess<Effect>("dotColor", &R::SetDotColor, &R::GetDotColor, BLUE, "0000ffff");
    ExpectNumber<Effect>("colourSize", &R::SetColourSize, &R::GetColourSize, FRACTION);
    ExpectNumber<Effect>("dotSize", &R::SetDotSize, &R::GetDotSize, FRACTION);
    ExpectNumber<Effect>("threshold", &R::SetThreshold, &R::GetThreshold, FRACTION);
    ExpectNumber<Effect>("angle", &R::SetAngle, &R::GetAngle, WHOLE);
}

TEST(RecordAccessors, OfPopArt)
{
    using R = SettingsEffectPopArt;
    using Effect = PopArtSettings;
    ExpectNumber<Effect>("saturation", &R::SetSaturation, &R::GetSaturation, FRACTION);
    ExpectNumber<Effect>("hue", &R::SetHue, &R::GetHue, FRACTION);
    ExpectNumber<Effect>("offset", &R::SetOffset, &R::GetOffset, FRACTION);
    ExpectNumber<Effect>("scale", &R::SetScale, &R::GetScale, FRACTION);
    ExpectNumber<Effect>("levels", &R::SetLevels, &R::GetLevels, WHOLE);
    ExpectNumber<Effect>("amountVertical", &R::SetAmountVertical, &R::GetAmountVertical, WHOLE);
    ExpectNumber<Effect>("amountHorizontal", &R::SetAmountHorizontal, &R::GetAmountHorizontal, WHOLE);
    ExpectNumber<Effect>("invertScale", &R::SetInvertScale, &R::GetInvertScale, true);
    ExpectNumber<Effect>("intensity", &R::SetIntensity, &R::GetIntensity, 0.375f);
    ExpectAccess<Effect>("disproportionPolicy", &R::SetDisproportionPolicy, &R::GetDisproportionPolicy,
                         R::DisproportionPolicy::Expand, "Expand");
}

TEST(RecordAccessors, OfPosterize)
{
    using R = SettingsEffectPosterize;
    ExpectNumber<PosterizeSettings>("isPal", &R::SetIsPal, &R::GetIsPal, true);
    ExpectNumber<PosterizeSettings>("seed", &R::SetSeed, &R::GetSeed, WHOLE);
    ExpectNumber<PosterizeSettings>("colors", &R::SetColorsNumber, &R::GetColorsNumber, WHOLE);
    ExpectNumber<PosterizeSettings>("intensity", &R::SetIntensity, &R::GetIntensity, 0.375f);
}

TEST(RecordAccessors, OfColorFilter)
{
    using R = SettingsEffectColorFilter;
    using Effect = ColorFilterSettings;
    ExpectAccess<Effect>("preset", &R::SetPreset, &R::GetPreset, R::Preset::enPraset07, "enPraset07");
    ExpectNumber<Effect>("filterId", &R::SetFilterId, &R::GetFilterId, WHOLE);
    ExpectNumber<Effect>("RFactor", &R::SetRFactor, &R::GetRFactor, 0.375f);
    ExpectNumber<Effect>("GFactor", &R::SetGFactor, &R::GetGFactor, 0.375f);
    ExpectNumber<Effect>("BFactor", &R::SetBFactor, &R::GetBFactor, 0.375f);
    ExpectNumber<Effect>("colorFactor", &R::SetColorFactor, &R::GetColorFactor, 0.375f);
    ExpectNumber<Effect>("intensity", &R::SetIntensity, &R::GetIntensity, 0.375f);
}

TEST(RecordAccessors, OfGIMPColorCorrection)
{
    using R = SettingsEffectGIMPColorCorrection;
    using Effect = GIMPColorCorrectionSettings;
    ExpectNumber<Effect>("brightness", &R::SetBrightness, &R::GetBrightness, 0.375f);
    ExpectNumber<Effect>("contrast", &R::SetContrast, &R::GetContrast, 0.375f);
}

TEST(RecordAccessors, OfGIMPColorTemperature)
{
    using R = SettingsEffectGIMPColorTemperature;
    using Effect = GIMPColorTemperatureSettings;
    ExpectNumber<Effect>("originalTemperature", &R::SetOriginalTemperature, &R::GetOriginalTemperature, 0.375f);
    ExpectNumber<Effect>("intendedTemperature", &R::SetIntendedTemperature, &R::GetIntendedTemperature, 0.375f);
    ExpectNumber<Effect>("intensity", &R::SetIntensity, &R::GetIntensity, 0.375f);
}

TEST(RecordAccessors, OfGIMPColorize)
{
    using R = SettingsEffectGIMPColorize;
    using Effect = GIMPColorizeSettings;
    ExpectNumber<Effect>("hue", &R::SetHue, &R::GetHue, 0.375f);
    ExpectNumber<Effect>("saturation", &R::SetSaturation, &R::GetSaturation, 0.375f);
    ExpectNumber<Effect>("lightness", &R::SetLightness, &R::GetLightness, 0.375f);
    ExpectNumber<Effect>("red", &R::SetRed, &R::GetRed, 0.375f);
    ExpectNumber<Effect>("green", &R::SetGreen, &R::GetGreen, 0.375f);
    ExpectNumber<Effect>("blue", &R::SetBlue, &R::GetBlue, 0.375f);
    ExpectNumber<Effect>("intensity", &R::SetIntensity, &R::GetIntensity, 0.375f);
}

TEST(RecordAccessors, OfGIMPShadowsHightlights)
{
    using R = SettingsEffectGIMPShadowsHightlights;
    using Effect = GIMPShadowsHightlightsSettings;
    ExpectNumber<Effect>("shadows", &R::SetShadows, &R::GetShadows, 0.375f);
    ExpectNumber<Effect>("shadowsColorCorrect", &R::SetShadowsColorCorrect, &R::GetShadowsColorCorrect, 0.375f);
    ExpectNumber<Effect>("highlights", &R::SetHighlights, &R::GetHighlights, 0.375f);
    ExpectNumber<Effect>("highlightsColorCorrect", &R::SetHighlightsColorCorrect, &R::GetHighlightsColorCorrect, 0.375f);
    ExpectNumber<Effect>("whitepoint", &R::SetWhitepoint, &R::GetWhitepoint, 0.375f);
    ExpectNumber<Effect>("compress", &R::SetCompress, &R::GetCompress, 0.375f);
    ExpectNumber<Effect>("intensity", &R::SetIntensity, &R::GetIntensity, 0.375f);
}

TEST(RecordAccessors, OfRetroColors)
{
    using R = SettingsEffectRetroColors;
    ExpectAccess<RetroColorsSettings>("type", &R::SetType, &R::GetType, R::RetroType::enSepia, "enSepia");
    ExpectNumber<RetroColorsSettings>("intensity", &R::SetIntensity, &R::GetIntensity, 0.375f);
}

TEST(RecordAccessors, OfRetroArtefacts)
{
    using R = SettingsEffectRetroArtefacts;
    using Effect = RetroArtefactsSettings;
    ExpectNumber<Effect>("shake", &R::SetShake, &R::GetShake, true);
    ExpectNumber<Effect>("vignetting", &R::SetVignetting, &R::GetVignetting, true);
    ExpectNumber<Effect>("grain", &R::SetGrain, &R::GetGrain, 73u);
    ExpectNumber<Effect>("scratches", &R::SetScratches, &R::GetScratches, 73u);
    ExpectNumber<Effect>("rollerTrack", &R::SetRollerTrack, &R::GetRollerTrack, 73u);
    ExpectNumber<Effect>("intensity", &R::SetIntensity, &R::GetIntensity, 0.375f);
}

TEST(RecordAccessors, OfVignetteFilter)
{
    using R = SettingsEffectVignetteFilter;
    using Effect = VignetteFilterSettings;
    ExpectAccess<Effect>("form", &R::SetForm, &R::GetForm, R::Form::enForm4, "enForm4");
    ExpectAccess<Effect>("smooth", &R::SetSmooth, &R::GetSmooth, R::Smooth::enCos, "enCos");
    ExpectAccess<Effect>("aspect", &R::SetAspect, &R::GetAspect, R::Aspect::enOgn, "enOgn");
    ExpectNumber<Effect>("x0", &R::SetX0, &R::GetX0, FRACTION);
    ExpectNumber<Effect>("y0", &R::SetY0, &R::GetY0, FRACTION);
    ExpectNumber<Effect>("RInternal", &R::SetRInternal, &R::GetRInternal, FRACTION);
    ExpectNumber<Effect>("RExternal", &R::SetRExternal, &R::GetRExternal, FRACTION);
    ExpectAccess<Effect>("color", &R::SetColor, &R::GetColor, BLUE, "0000ffff");
    ExpectNumber<Effect>("intensity", &R::SetIntensity, &R::GetIntensity, 0.375f);
}

} // namespace
