#ifndef OMBREL_BENCHMARKS_HAND_WRITTEN_RECORDS_H
#define OMBREL_BENCHMARKS_HAND_WRITTEN_RECORDS_H

#include "Constant.h"
#include "Proc/Settings/SettingsEffectAcid.h"
#include "Proc/Settings/SettingsEffectAdjuster.h"
#include "Proc/Settings/SettingsEffectEmpty.h"

#include <concepts>
#include <cstddef>
#include <string>
#include <string_view>

/// Every key and default of every record by hand, in key order, once for all formats. `sink` is the map of a format, or what
/// counts the entries that it will have. `cursor` walks over a map.
namespace Ombrel::Benchmarks
{

struct FieldCounter
{
    std::size_t count = 0;
};

/// A map that gets the record's class id as well.
template <class Map> struct Identified : Map
{
    explicit Identified(const Map& map) : Map(map) {}
};

/// Calls `put` with the map if a field has changed.
template <class Sink, class Put> void PutIf(Sink& sink, bool isChanged, const Put& put)
{
    if constexpr (std::same_as<Sink, FieldCounter>)
    {
        sink.count += isChanged ? 1 : 0;
    }
    else if (isChanged)
    {
        put(sink);
    }
}

template <class Sink, class Value> void Put(Sink& sink, std::string_view key, const Value& value, const Value& fallback)
{
    PutIf(sink, value != fallback, [&](auto& map) { map.Put(key, value); });
}

template <class Sink, class Record> void PutId(Sink&, const Record&) {}

template <class Map, class Record> void PutId(Identified<Map>& sink, const Record&)
{
    sink.Put("name", Constant{Record::CLASS_NAME});
}

template <class Record> std::size_t CountFields(const Record& record)
{
    FieldCounter counter;
    WriteFields(counter, record);
    return counter.count;
}

template <class Sink, class Record> void PutRecord(Sink& sink, std::string_view key, bool isChanged, const Record& record)
{
    PutIf(sink, isChanged,
          [&](auto& map)
          {
              auto child = map.PutMap(key, CountFields(record));
              WriteFields(child, record);
          });
}

template <class Cursor, class Value>
[[gnu::always_inline]] inline Value Take(Cursor& cursor, std::string_view key, Value fallback)
{
    cursor.Find(key, [&](const auto& value) { fallback = Cursor::Format::template Decode<Value>(value); });
    return fallback;
}

template <class Cursor, class Record>
void TakeRecord(Cursor& cursor, std::string_view key, Record& record, const Record& fallback)
{
    const auto read = [&](const auto& value)
    {
        auto map = Cursor::Format::CursorOf(value);
        ReadFields(map, record);
    };
    if (!cursor.Find(key, read))
    {
        record = fallback;
    }
}

template <class Cursor> std::string TakeText(Cursor& cursor, std::string_view key)
{
    std::string text;
    cursor.Find(key, [&](const auto& value) { text = Cursor::Format::TextOf(value); });
    return text;
}

// EFFECT_ACID

template <class Sink> void WriteFields(Sink& sink, const Proc::SettingsEffectAcid& record)
{
    PutId(sink, record);
    Put(sink, "radius", record.radius, 0);
    Put(sink, "sigma", record.sigma, 0.5);
}

template <class Cursor> void ReadFields(Cursor& cursor, Proc::SettingsEffectAcid& record)
{
    record.radius = Take(cursor, "radius", 0);
    record.sigma = Take(cursor, "sigma", 0.5);
}

inline bool Same(const Proc::SettingsEffectAcid& a, const Proc::SettingsEffectAcid& b)
{
    return a.radius == b.radius && a.sigma == b.sigma;
}

// EFFECT_COLOR_BALANCE

template <class Sink> void WriteFields(Sink& sink, const Proc::SettingsEffectColorBalance& record)
{
    Put(sink, "brightness", record.GetBrightness(), 0);
    Put(sink, "contrast", record.GetContrast(), 0);
    Put(sink, "gamma", record.GetGamma(), 0);
    Put(sink, "gammaBlue", record.GetGammaBlue(), 0);
    Put(sink, "gammaGreen", record.GetGammaGreen(), 0);
    Put(sink, "gammaRed", record.GetGammaRed(), 0);
    Put(sink, "gammaWeight", record.GetGammaWeight(), 0);
    Put(sink, "hue", record.GetHue(), 0);
    PutId(sink, record);
    Put(sink, "saturation", record.GetSaturation(), 0);
}

template <class Cursor> void ReadFields(Cursor& cursor, Proc::SettingsEffectColorBalance& record)
{
    record.SetBrightness(Take(cursor, "brightness", 0));
    record.SetContrast(Take(cursor, "contrast", 0));
    record.SetGamma(Take(cursor, "gamma", 0));
    record.SetGammaBlue(Take(cursor, "gammaBlue", 0));
    record.SetGammaGreen(Take(cursor, "gammaGreen", 0));
    record.SetGammaRed(Take(cursor, "gammaRed", 0));
    record.SetGammaWeight(Take(cursor, "gammaWeight", 0));
    record.SetHue(Take(cursor, "hue", 0));
    record.SetSaturation(Take(cursor, "saturation", 0));
}

inline bool Same(const Proc::SettingsEffectColorBalance& a, const Proc::SettingsEffectColorBalance& b)
{
    return a.GetBrightness() == b.GetBrightness() && a.GetContrast() == b.GetContrast() &&
           a.GetSaturation() == b.GetSaturation() && a.GetHue() == b.GetHue() && a.GetGamma() == b.GetGamma() &&
           a.GetGammaRed() == b.GetGammaRed() && a.GetGammaGreen() == b.GetGammaGreen() &&
           a.GetGammaBlue() == b.GetGammaBlue() && a.GetGammaWeight() == b.GetGammaWeight();
}

// EFFECT_COLOR_BALANCE_AUTO

template <class Sink> void WriteFields(Sink& sink, const Proc::SettingsEffectColorBalanceAuto& record)
{
    Put(sink, "exposure", record.m_exposure, 0);
    Put(sink, "lightBalance", record.m_lightBalance, false);
    PutId(sink, record);
    Put(sink, "whiteBalance", record.m_whiteBalance, false);
}

template <class Cursor> void ReadFields(Cursor& cursor, Proc::SettingsEffectColorBalanceAuto& record)
{
    record.m_exposure = Take(cursor, "exposure", 0);
    record.m_lightBalance = Take(cursor, "lightBalance", false);
    record.m_whiteBalance = Take(cursor, "whiteBalance", false);
}

inline bool Same(const Proc::SettingsEffectColorBalanceAuto& a, const Proc::SettingsEffectColorBalanceAuto& b)
{
    return a.m_whiteBalance == b.m_whiteBalance && a.m_lightBalance == b.m_lightBalance && a.m_exposure == b.m_exposure;
}

// EFFECT_DETAILS

template <class Sink> void WriteFields(Sink& sink, const Proc::SettingsEffectDetailsEnhance& record)
{
    PutId(sink, record);
    Put(sink, "strength", record.m_strength, 0);
}

template <class Cursor> void ReadFields(Cursor& cursor, Proc::SettingsEffectDetailsEnhance& record)
{
    record.m_strength = Take(cursor, "strength", 0);
}

inline bool Same(const Proc::SettingsEffectDetailsEnhance& a, const Proc::SettingsEffectDetailsEnhance& b)
{
    return a.m_strength == b.m_strength;
}

// EFFECT_EMPTY

template <class Sink> void WriteFields(Sink& sink, const Proc::SettingsEffectEmpty& record)
{
    PutId(sink, record);
    PutIf(sink, !record.m_value.empty(), [&](auto& map) { map.Put("value", record.m_value); });
}

template <class Cursor> void ReadFields(Cursor& cursor, Proc::SettingsEffectEmpty& record)
{
    record.m_value = TakeText(cursor, "value");
}

inline bool Same(const Proc::SettingsEffectEmpty&, const Proc::SettingsEffectEmpty&)
{
    return true; // its effect does nothing, whatever the value
}

// EFFECT_SMART_BLUR

template <class Sink> void WriteFields(Sink& sink, const Proc::SettingsEffectSmartBlur& record)
{
    Put(sink, "chromaBlur", record.GetChromaBlur(), 0);
    Put(sink, "chromaRadius", record.GetChromaRadius(), 0);
    Put(sink, "chromaSharpen", record.GetChromaSharpen(), 0);
    Put(sink, "chromaThreshold", record.GetChromaThreshold(), 0);
    Put(sink, "lumaBlur", record.GetLumaBlur(), 0);
    Put(sink, "lumaRadius", record.GetLumaRadius(), 0);
    Put(sink, "lumaSharpen", record.GetLumaSharpen(), 0);
    Put(sink, "lumaThreshold", record.GetLumaThreshold(), 0);
    PutId(sink, record);
}

template <class Cursor> void ReadFields(Cursor& cursor, Proc::SettingsEffectSmartBlur& record)
{
    record.SetChromaBlur(Take(cursor, "chromaBlur", 0));
    record.SetChromaRadius(Take(cursor, "chromaRadius", 0));
    record.SetChromaSharpen(Take(cursor, "chromaSharpen", 0));
    record.SetChromaThreshold(Take(cursor, "chromaThreshold", 0));
    record.SetLumaBlur(Take(cursor, "lumaBlur", 0));
    record.SetLumaRadius(Take(cursor, "lumaRadius", 0));
    record.SetLumaSharpen(Take(cursor, "lumaSharpen", 0));
    record.SetLumaThreshold(Take(cursor, "lumaThreshold", 0));
}

inline bool Same(const Proc::SettingsEffectSmartBlur& a, const Proc::SettingsEffectSmartBlur& b)
{
    return a.GetLumaRadius() == b.GetLumaRadius() && a.GetLumaBlur() == b.GetLumaBlur() &&
           a.GetLumaSharpen() == b.GetLumaSharpen() && a.GetLumaThreshold() == b.GetLumaThreshold() &&
           a.GetChromaRadius() == b.GetChromaRadius() && a.GetChromaBlur() == b.GetChromaBlur() &&
           a.GetChromaSharpen() == b.GetChromaSharpen() && a.GetChromaThreshold() == b.GetChromaThreshold();
}

// EFFECT_VIBRANCE

template <class Sink> void WriteFields(Sink& sink, const Proc::SettingsEffectVibrance& record)
{
    PutId(sink, record);
    Put(sink, "strength", record.m_strength, 0);
}

template <class Cursor> void ReadFields(Cursor& cursor, Proc::SettingsEffectVibrance& record)
{
    record.m_strength = Take(cursor, "strength", 0);
}

inline bool Same(const Proc::SettingsEffectVibrance& a, const Proc::SettingsEffectVibrance& b)
{
    return a.m_strength == b.m_strength;
}

// EFFECT_ADJUSTER, whose nested records have to be declared by now

// What the nested records are where they are missing.
struct AdjusterDefaults
{
    AdjusterDefaults()
    {
        smartBlur.SetLumaRadius(100);
        smartBlur.SetChromaRadius(100);
    }

    Proc::SettingsEffectColorBalance colorBalance;
    Proc::SettingsEffectColorBalanceAuto colorBalanceAuto;
    Proc::SettingsEffectDetailsEnhance detailsEnhance;
    Proc::SettingsEffectSmartBlur smartBlur;
    Proc::SettingsEffectVibrance vibrance;
};

inline const AdjusterDefaults ADJUSTER_DEFAULTS;

template <class Sink> void WriteFields(Sink& sink, const Proc::SettingsEffectAdjuster& record)
{
    Put(sink, "brightness", record.m_brightness, 0.0);
    PutRecord(sink, "colorBalance", !Same(record.m_colorBalance, ADJUSTER_DEFAULTS.colorBalance), record.m_colorBalance);
    PutRecord(sink, "colorBalanceAuto", !Same(record.m_colorBalanceAuto, ADJUSTER_DEFAULTS.colorBalanceAuto),
              record.m_colorBalanceAuto);
    Put(sink, "colorizeHue", record.m_colorizeHue, 0.0);
    Put(sink, "colorizeIntensity", record.m_colorizeIntensity, 1.0);
    Put(sink, "colorizeLightness", record.m_colorizeLightness, 0.0);
    Put(sink, "colorizeSaturation", record.m_colorizeSaturation, 0.0);
    Put(sink, "contrast", record.m_contrast, 0.0);
    PutRecord(sink, "detailsEnhance", !Same(record.m_detailsEnhance, ADJUSTER_DEFAULTS.detailsEnhance),
              record.m_detailsEnhance);
    Put(sink, "gamma", record.m_gamma, 0.0);
    Put(sink, "highlights", record.m_highlights, 0.0);
    Put(sink, "highlightsIntensity", record.m_highlightsIntensity, 1.0);
    Put(sink, "hue", record.m_hue, 0.0);
    Put(sink, "hueIntensity", record.m_hueIntensity, 1.0);
    PutId(sink, record);
    Put(sink, "shadows", record.m_shadows, 0.0);
    Put(sink, "shadowsIntensity", record.m_shadowsIntensity, 1.0);
    PutRecord(sink, "smartBlur", !Same(record.m_smartBlur, ADJUSTER_DEFAULTS.smartBlur), record.m_smartBlur);
    Put(sink, "temperature", record.m_temperature, 0.0);
    Put(sink, "temperatureIntensity", record.m_temperatureIntensity, 1.0);
    PutRecord(sink, "vibrance", !Same(record.m_vibrance, ADJUSTER_DEFAULTS.vibrance), record.m_vibrance);
}

template <class Cursor> void ReadFields(Cursor& cursor, Proc::SettingsEffectAdjuster& record)
{
    record.m_brightness = Take(cursor, "brightness", 0.0);
    TakeRecord(cursor, "colorBalance", record.m_colorBalance, ADJUSTER_DEFAULTS.colorBalance);
    TakeRecord(cursor, "colorBalanceAuto", record.m_colorBalanceAuto, ADJUSTER_DEFAULTS.colorBalanceAuto);
    record.m_colorizeHue = Take(cursor, "colorizeHue", 0.0);
    record.m_colorizeIntensity = Take(cursor, "colorizeIntensity", 1.0);
    record.m_colorizeLightness = Take(cursor, "colorizeLightness", 0.0);
    record.m_colorizeSaturation = Take(cursor, "colorizeSaturation", 0.0);
    record.m_contrast = Take(cursor, "contrast", 0.0);
    TakeRecord(cursor, "detailsEnhance", record.m_detailsEnhance, ADJUSTER_DEFAULTS.detailsEnhance);
    record.m_gamma = Take(cursor, "gamma", 0.0);
    record.m_highlights = Take(cursor, "highlights", 0.0);
    record.m_highlightsIntensity = Take(cursor, "highlightsIntensity", 1.0);
    record.m_hue = Take(cursor, "hue", 0.0);
    record.m_hueIntensity = Take(cursor, "hueIntensity", 1.0);
    record.m_shadows = Take(cursor, "shadows", 0.0);
    record.m_shadowsIntensity = Take(cursor, "shadowsIntensity", 1.0);
    TakeRecord(cursor, "smartBlur", record.m_smartBlur, ADJUSTER_DEFAULTS.smartBlur);
    record.m_temperature = Take(cursor, "temperature", 0.0);
    record.m_temperatureIntensity = Take(cursor, "temperatureIntensity", 1.0);
    TakeRecord(cursor, "vibrance", record.m_vibrance, ADJUSTER_DEFAULTS.vibrance);
}

inline bool Same(const Proc::SettingsEffectAdjuster& a, const Proc::SettingsEffectAdjuster& b)
{
    return Same(a.m_colorBalanceAuto, b.m_colorBalanceAuto) && Same(a.m_colorBalance, b.m_colorBalance) &&
           Same(a.m_vibrance, b.m_vibrance) && Same(a.m_detailsEnhance, b.m_detailsEnhance) &&
           Same(a.m_smartBlur, b.m_smartBlur) && a.m_colorizeHue == b.m_colorizeHue &&
           a.m_colorizeSaturation == b.m_colorizeSaturation && a.m_colorizeLightness == b.m_colorizeLightness &&
           a.m_colorizeIntensity == b.m_colorizeIntensity && a.m_temperature == b.m_temperature &&
           a.m_temperatureIntensity == b.m_temperatureIntensity && a.m_brightness == b.m_brightness &&
           a.m_contrast == b.m_contrast && a.m_gamma == b.m_gamma && a.m_hue == b.m_hue &&
           a.m_hueIntensity == b.m_hueIntensity && a.m_highlights == b.m_highlights &&
           a.m_highlightsIntensity == b.m_highlightsIntensity && a.m_shadows == b.m_shadows &&
           a.m_shadowsIntensity == b.m_shadowsIntensity;
}

} // namespace Ombrel::Benchmarks

#endif
