#include "Samples.h"

#include "Proc/Settings/SettingsEffectAcid.h"
#include "Proc/Settings/SettingsEffectBiColorToning.h"
#include "Proc/Settings/SettingsEffectBlurRadial.h"
#include "Proc/Settings/SettingsEffectEmpty.h"
#include "Proc/Settings/SettingsEffectFaceThinning.h"
#include "Proc/Settings/SettingsEffectGradient.h"
#include "Proc/Settings/SettingsEffectNegateVideo.h"

#include <cstdint>
#include <string>

namespace Ombrel::Benchmarks
{
namespace
{

Proc::SettingsEffectAcid FullAcid(int seed)
{
    Proc::SettingsEffectAcid record;
    record.radius = 1 + seed;
    record.sigma = 0.75 + seed;
    return record;
}

Proc::RgbaColor Color(int seed)
{
    const auto byte = [seed](int offset) { return static_cast<std::uint8_t>(offset + seed % 100); };
    return {byte(7), byte(70), byte(140), byte(100)};
}

Proc::SettingsEffectBiColorToning FullBiColorToning(int seed)
{
    Proc::SettingsEffectBiColorToning record;
    record.m_colorFirst = Color(seed);
    record.m_colorSecond = Color(seed + 50);
    return record;
}

Proc::SettingsEffectBlurRadial FullBlurRadial(int seed)
{
    Proc::SettingsEffectBlurRadial record;
    record.m_mode = Proc::SettingsEffectBlurRadial::BlurRadialMode::Custom;
    record.m_x = 0.25 + seed;
    record.m_y = 0.75 + seed;
    record.m_strength = 62.5 + seed;
    record.m_angle = 30.5 + seed;
    for (int i = 0; i != 10; ++i)
    {
        record.m_trace.push_back({40 * i + 1, 900 - 3 * i + seed});
    }
    return record;
}

Proc::SettingsEffectFaceThinning FullFaceThinning(int seed)
{
    Proc::SettingsEffectFaceThinning record;
    for (int i = 0; i != 200; ++i)
    {
        record.m_faceOutline.m_contour.push_back({1000 + 2 * i, 500 + seed + i % 7});
    }
    record.m_strength = 0.625 + seed;
    return record;
}

Proc::SettingsEffectGradient FullGradient(int seed)
{
    Proc::SettingsEffectGradient record;
    for (int i = 0; i != 8; ++i)
    {
        record.m_gradient[static_cast<std::uint8_t>(36 * i)] = Color(seed + i);
    }
    return record;
}

Proc::SettingsEffectNegateVideo FullNegateVideo(int)
{
    using Channel = Proc::SettingsEffectNegateVideo::Channel;
    Proc::SettingsEffectNegateVideo record;
    record.SetMode({Channel::Red, Channel::Blue});
    return record;
}

Proc::SettingsEffectColorBalance FullColorBalance(int seed)
{
    Proc::SettingsEffectColorBalance record;
    record.SetBrightness(11 + seed);
    record.SetContrast(-12 - seed);
    record.SetSaturation(13 + seed);
    record.SetHue(14 + seed % 150);
    record.SetGamma(15 + seed);
    record.SetGammaRed(16 + seed);
    record.SetGammaGreen(-17 - seed);
    record.SetGammaBlue(18 + seed);
    record.SetGammaWeight(19 + seed);
    return record;
}

Proc::SettingsEffectColorBalanceAuto FullColorBalanceAuto(int seed)
{
    Proc::SettingsEffectColorBalanceAuto record;
    record.m_whiteBalance = true;
    record.m_lightBalance = true;
    record.m_exposure = 21 + seed;
    return record;
}

Proc::SettingsEffectDetailsEnhance FullDetailsEnhance(int seed)
{
    Proc::SettingsEffectDetailsEnhance record;
    record.m_strength = 31 + seed;
    return record;
}

Proc::SettingsEffectEmpty FullEmpty(int seed)
{
    Proc::SettingsEffectEmpty record;
    record.m_value = "layer " + std::to_string(seed);
    return record;
}

Proc::SettingsEffectSmartBlur FullSmartBlur(int seed)
{
    Proc::SettingsEffectSmartBlur record;
    record.SetLumaRadius(41 + seed % 50);
    record.SetLumaBlur(42 + seed);
    record.SetLumaSharpen(-43 - seed);
    record.SetLumaThreshold(44 + seed);
    record.SetChromaRadius(45 + seed % 50);
    record.SetChromaBlur(46 + seed);
    record.SetChromaSharpen(-47 - seed);
    record.SetChromaThreshold(48 + seed);
    return record;
}

Proc::SettingsEffectVibrance FullVibrance(int seed)
{
    Proc::SettingsEffectVibrance record;
    record.m_strength = 51 + seed;
    return record;
}

template <class Record> std::unique_ptr<Proc::Settings> Own(const Record& record)
{
    return std::make_unique<Record>(record);
}

} // namespace

Proc::SettingsEffectAdjuster FullAdjuster(int seed)
{
    Proc::SettingsEffectAdjuster record;
    record.m_colorBalanceAuto = FullColorBalanceAuto(seed);
    record.m_colorBalance = FullColorBalance(seed);
    record.m_vibrance = FullVibrance(seed);
    record.m_detailsEnhance = FullDetailsEnhance(seed);
    record.m_smartBlur = FullSmartBlur(seed);
    record.m_colorizeHue = 61.5 + seed;
    record.m_colorizeSaturation = 0.35 + seed;
    record.m_colorizeLightness = -0.15 - seed;
    record.m_colorizeIntensity = 0.85 - seed;
    record.m_temperature = 6450.5 + seed;
    record.m_temperatureIntensity = 0.65 - seed;
    record.m_brightness = 12.25 + seed;
    record.m_contrast = -7.5 - seed;
    record.m_gamma = 1.1 + seed;
    record.m_hue = 14.75 + seed;
    record.m_hueIntensity = 0.45 - seed;
    record.m_highlights = -22.5 - seed;
    record.m_highlightsIntensity = 0.55 - seed;
    record.m_shadows = 31.25 + seed;
    record.m_shadowsIntensity = 0.95 - seed;
    return record;
}

Proc::SettingsEffectAdjuster SparseAdjuster()
{
    Proc::SettingsEffectAdjuster record;
    record.m_highlights = -22.5;
    record.m_shadows = 31.25;
    return record;
}

std::vector<std::unique_ptr<Proc::Settings>> FullRecords(std::size_t count, Faces faces)
{
    std::vector<std::unique_ptr<Proc::Settings>> records;
    for (int seed = 0; records.size() < count; ++seed)
    {
        records.push_back(Own(FullAcid(seed)));
        records.push_back(Own(FullAdjuster(seed)));
        records.push_back(Own(FullBiColorToning(seed)));
        records.push_back(Own(FullBlurRadial(seed)));
        records.push_back(Own(FullColorBalance(seed)));
        records.push_back(Own(FullColorBalanceAuto(seed)));
        records.push_back(Own(FullDetailsEnhance(seed)));
        records.push_back(Own(FullEmpty(seed)));
        if (faces == Faces::With)
        {
            records.push_back(Own(FullFaceThinning(seed)));
        }
        records.push_back(Own(FullGradient(seed)));
        records.push_back(Own(FullNegateVideo(seed)));
        records.push_back(Own(FullSmartBlur(seed)));
        records.push_back(Own(FullVibrance(seed)));
    }
    records.resize(count);
    return records;
}

} // namespace Ombrel::Benchmarks
