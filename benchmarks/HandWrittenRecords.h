#ifndef OMBREL_BENCHMARKS_HAND_WRITTEN_RECORDS_H
#define OMBREL_BENCHMARKS_HAND_WRITTEN_RECORDS_H

#include "Proc/Settings/SettingsEffectAcid.h"
#include "Proc/Settings/SettingsEffectAdjuster.h"
#include "Proc/Settings/SettingsEffectEmpty.h"
#include "PropertyTree/PropertyTree.h"

#include <nlohmann/json.hpp>
#include <rapidjson/document.h>

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

/// Every key and default of every record by hand, in key order, which is the order in which the maps grow fastest. What is
/// called `Map` is the map of a tree or the object of a DOM; RapidJSON's needs its document's allocator beside it.
namespace Ombrel::Benchmarks
{

using Dom = nlohmann::json;
using DomMap = Dom::object_t;
using TreeMap = PropertyTree::Map;

struct RapidMap
{
    rapidjson::Value* object;
    rapidjson::Document::AllocatorType* allocator;
};

inline rapidjson::Value::StringRefType TextOf(std::string_view text)
{
    return {text.data(), static_cast<rapidjson::SizeType>(text.size())};
}

// How many fields the record has, which is what its map has room for.
template <class Record> inline constexpr std::size_t FIELD_COUNT = 0;
template <> inline constexpr std::size_t FIELD_COUNT<Proc::SettingsEffectAcid> = 2;
template <> inline constexpr std::size_t FIELD_COUNT<Proc::SettingsEffectAdjuster> = 20;
template <> inline constexpr std::size_t FIELD_COUNT<Proc::SettingsEffectColorBalance> = 9;
template <> inline constexpr std::size_t FIELD_COUNT<Proc::SettingsEffectColorBalanceAuto> = 3;
template <> inline constexpr std::size_t FIELD_COUNT<Proc::SettingsEffectDetailsEnhance> = 1;
template <> inline constexpr std::size_t FIELD_COUNT<Proc::SettingsEffectEmpty> = 1;
template <> inline constexpr std::size_t FIELD_COUNT<Proc::SettingsEffectSmartBlur> = 8;
template <> inline constexpr std::size_t FIELD_COUNT<Proc::SettingsEffectVibrance> = 1;

template <class Value> void Put(TreeMap& map, std::string_view key, const Value& value, const Value& fallback)
{
    if (value != fallback)
    {
        map.try_emplace(key, PropertyTree(value));
    }
}

template <class Value> void Put(DomMap& map, std::string_view key, const Value& value, const Value& fallback)
{
    if (value != fallback)
    {
        map.emplace_hint(map.end(), key, value);
    }
}

template <class Value> void Put(RapidMap& map, std::string_view key, const Value& value, const Value& fallback)
{
    if (value == fallback)
    {
        return;
    }
    if constexpr (std::is_arithmetic_v<Value>)
    {
        map.object->AddMember(TextOf(key), value, *map.allocator);
    }
    else
    {
        map.object->AddMember(TextOf(key), rapidjson::Value(TextOf(value), *map.allocator), *map.allocator);
    }
}

inline TreeMap& PutMap(TreeMap& map, std::string_view key, std::size_t fieldCount)
{
    return map[key].makeMap(fieldCount);
}

inline DomMap& PutMap(DomMap& map, std::string_view key, std::size_t)
{
    return map.emplace_hint(map.end(), key, Dom::object())->second.get_ref<DomMap&>();
}

inline RapidMap PutMap(RapidMap& map, std::string_view key, std::size_t)
{
    map.object->AddMember(TextOf(key), rapidjson::Value(rapidjson::kObjectType), *map.allocator);
    return {&(map.object->MemberEnd() - 1)->value, map.allocator};
}

template <class Value> Value Decode(const PropertyTree& child)
{
    const PropertyTreeScalar& scalar = child.getScalar();
    if constexpr (std::same_as<Value, bool>)
    {
        bool value = false;
        scalar.convertTo(value);
        return value;
    }
    else if constexpr (std::integral<Value>)
    {
        return static_cast<Value>(scalar.toInt());
    }
    else if constexpr (std::floating_point<Value>)
    {
        return scalar.toDouble();
    }
    else
    {
        return scalar.toString();
    }
}

template <class Value> Value Decode(const Dom& child)
{
    return child.get<Value>();
}

template <class Value> Value Decode(const rapidjson::Value& child)
{
    if constexpr (std::is_arithmetic_v<Value>)
    {
        return child.Get<Value>();
    }
    else
    {
        return {child.GetString(), child.GetStringLength()};
    }
}

inline const TreeMap& MapOf(const PropertyTree& child)
{
    return child.getMap();
}

inline const DomMap& MapOf(const Dom& child)
{
    return child.get_ref<const DomMap&>();
}

inline const rapidjson::Value& MapOf(const rapidjson::Value& child)
{
    return child;
}

// The value under the key, or null.
template <class Map> auto Find(const Map& map, std::string_view key)
{
    const auto found = map.find(key);
    return found == map.end() ? nullptr : &found->second;
}

inline const rapidjson::Value* Find(const rapidjson::Value& map, std::string_view key)
{
    const auto found = map.FindMember(rapidjson::Value(TextOf(key)));
    return found == map.MemberEnd() ? nullptr : &found->value;
}

template <class Map, class Value> Value Take(const Map& map, std::string_view key, Value fallback)
{
    const auto* child = Find(map, key);
    return child ? Decode<Value>(*child) : fallback;
}

// EFFECT_ACID

template <class Map> void WriteFields(Map&& map, const Proc::SettingsEffectAcid& record)
{
    Put(map, "radius", record.radius, 0);
    Put(map, "sigma", record.sigma, 0.5);
}

template <class Map> void ReadFields(const Map& map, Proc::SettingsEffectAcid& record)
{
    record.radius = Take(map, "radius", 0);
    record.sigma = Take(map, "sigma", 0.5);
}

inline bool Same(const Proc::SettingsEffectAcid& a, const Proc::SettingsEffectAcid& b)
{
    return a.radius == b.radius && a.sigma == b.sigma;
}

// EFFECT_COLOR_BALANCE

template <class Map> void WriteFields(Map&& map, const Proc::SettingsEffectColorBalance& record)
{
    Put(map, "brightness", record.GetBrightness(), 0);
    Put(map, "contrast", record.GetContrast(), 0);
    Put(map, "gamma", record.GetGamma(), 0);
    Put(map, "gammaBlue", record.GetGammaBlue(), 0);
    Put(map, "gammaGreen", record.GetGammaGreen(), 0);
    Put(map, "gammaRed", record.GetGammaRed(), 0);
    Put(map, "gammaWeight", record.GetGammaWeight(), 0);
    Put(map, "hue", record.GetHue(), 0);
    Put(map, "saturation", record.GetSaturation(), 0);
}

template <class Map> void ReadFields(const Map& map, Proc::SettingsEffectColorBalance& record)
{
    record.SetBrightness(Take(map, "brightness", 0));
    record.SetContrast(Take(map, "contrast", 0));
    record.SetGamma(Take(map, "gamma", 0));
    record.SetGammaBlue(Take(map, "gammaBlue", 0));
    record.SetGammaGreen(Take(map, "gammaGreen", 0));
    record.SetGammaRed(Take(map, "gammaRed", 0));
    record.SetGammaWeight(Take(map, "gammaWeight", 0));
    record.SetHue(Take(map, "hue", 0));
    record.SetSaturation(Take(map, "saturation", 0));
}

inline bool Same(const Proc::SettingsEffectColorBalance& a, const Proc::SettingsEffectColorBalance& b)
{
    return a.GetBrightness() == b.GetBrightness() && a.GetContrast() == b.GetContrast() &&
           a.GetSaturation() == b.GetSaturation() && a.GetHue() == b.GetHue() && a.GetGamma() == b.GetGamma() &&
           a.GetGammaRed() == b.GetGammaRed() && a.GetGammaGreen() == b.GetGammaGreen() &&
           a.GetGammaBlue() == b.GetGammaBlue() && a.GetGammaWeight() == b.GetGammaWeight();
}

// EFFECT_COLOR_BALANCE_AUTO

template <class Map> void WriteFields(Map&& map, const Proc::SettingsEffectColorBalanceAuto& record)
{
    Put(map, "exposure", record.m_exposure, 0);
    Put(map, "lightBalance", record.m_lightBalance, false);
    Put(map, "whiteBalance", record.m_whiteBalance, false);
}

template <class Map> void ReadFields(const Map& map, Proc::SettingsEffectColorBalanceAuto& record)
{
    record.m_exposure = Take(map, "exposure", 0);
    record.m_lightBalance = Take(map, "lightBalance", false);
    record.m_whiteBalance = Take(map, "whiteBalance", false);
}

inline bool Same(const Proc::SettingsEffectColorBalanceAuto& a, const Proc::SettingsEffectColorBalanceAuto& b)
{
    return a.m_whiteBalance == b.m_whiteBalance && a.m_lightBalance == b.m_lightBalance && a.m_exposure == b.m_exposure;
}

// EFFECT_DETAILS

template <class Map> void WriteFields(Map&& map, const Proc::SettingsEffectDetailsEnhance& record)
{
    Put(map, "strength", record.m_strength, 0);
}

template <class Map> void ReadFields(const Map& map, Proc::SettingsEffectDetailsEnhance& record)
{
    record.m_strength = Take(map, "strength", 0);
}

inline bool Same(const Proc::SettingsEffectDetailsEnhance& a, const Proc::SettingsEffectDetailsEnhance& b)
{
    return a.m_strength == b.m_strength;
}

// EFFECT_EMPTY

template <class Map> void WriteFields(Map&& map, const Proc::SettingsEffectEmpty& record)
{
    if (!record.m_value.empty())
    {
        Put(map, "value", record.m_value, std::string());
    }
}

template <class Map> void ReadFields(const Map& map, Proc::SettingsEffectEmpty& record)
{
    record.m_value = Take(map, "value", std::string());
}

inline bool Same(const Proc::SettingsEffectEmpty&, const Proc::SettingsEffectEmpty&)
{
    return true; // its effect does nothing, whatever the value
}

// EFFECT_SMART_BLUR

template <class Map> void WriteFields(Map&& map, const Proc::SettingsEffectSmartBlur& record)
{
    Put(map, "chromaBlur", record.GetChromaBlur(), 0);
    Put(map, "chromaRadius", record.GetChromaRadius(), 0);
    Put(map, "chromaSharpen", record.GetChromaSharpen(), 0);
    Put(map, "chromaThreshold", record.GetChromaThreshold(), 0);
    Put(map, "lumaBlur", record.GetLumaBlur(), 0);
    Put(map, "lumaRadius", record.GetLumaRadius(), 0);
    Put(map, "lumaSharpen", record.GetLumaSharpen(), 0);
    Put(map, "lumaThreshold", record.GetLumaThreshold(), 0);
}

template <class Map> void ReadFields(const Map& map, Proc::SettingsEffectSmartBlur& record)
{
    record.SetChromaBlur(Take(map, "chromaBlur", 0));
    record.SetChromaRadius(Take(map, "chromaRadius", 0));
    record.SetChromaSharpen(Take(map, "chromaSharpen", 0));
    record.SetChromaThreshold(Take(map, "chromaThreshold", 0));
    record.SetLumaBlur(Take(map, "lumaBlur", 0));
    record.SetLumaRadius(Take(map, "lumaRadius", 0));
    record.SetLumaSharpen(Take(map, "lumaSharpen", 0));
    record.SetLumaThreshold(Take(map, "lumaThreshold", 0));
}

inline bool Same(const Proc::SettingsEffectSmartBlur& a, const Proc::SettingsEffectSmartBlur& b)
{
    return a.GetLumaRadius() == b.GetLumaRadius() && a.GetLumaBlur() == b.GetLumaBlur() &&
           a.GetLumaSharpen() == b.GetLumaSharpen() && a.GetLumaThreshold() == b.GetLumaThreshold() &&
           a.GetChromaRadius() == b.GetChromaRadius() && a.GetChromaBlur() == b.GetChromaBlur() &&
           a.GetChromaSharpen() == b.GetChromaSharpen() && a.GetChromaThreshold() == b.GetChromaThreshold();
}

// EFFECT_VIBRANCE

template <class Map> void WriteFields(Map&& map, const Proc::SettingsEffectVibrance& record)
{
    Put(map, "strength", record.m_strength, 0);
}

template <class Map> void ReadFields(const Map& map, Proc::SettingsEffectVibrance& record)
{
    record.m_strength = Take(map, "strength", 0);
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

template <class Map, class Record> void PutRecord(Map& map, std::string_view key, const Record& record, const Record& fallback)
{
    if (!Same(record, fallback))
    {
        WriteFields(PutMap(map, key, FIELD_COUNT<Record>), record);
    }
}

template <class Map, class Record> void TakeRecord(const Map& map, std::string_view key, Record& record, const Record& fallback)
{
    if (const auto* child = Find(map, key))
    {
        ReadFields(MapOf(*child), record);
    }
    else
    {
        record = fallback;
    }
}

template <class Map> void WriteFields(Map&& map, const Proc::SettingsEffectAdjuster& record)
{
    Put(map, "brightness", record.m_brightness, 0.0);
    PutRecord(map, "colorBalance", record.m_colorBalance, ADJUSTER_DEFAULTS.colorBalance);
    PutRecord(map, "colorBalanceAuto", record.m_colorBalanceAuto, ADJUSTER_DEFAULTS.colorBalanceAuto);
    Put(map, "colorizeHue", record.m_colorizeHue, 0.0);
    Put(map, "colorizeIntensity", record.m_colorizeIntensity, 1.0);
    Put(map, "colorizeLightness", record.m_colorizeLightness, 0.0);
    Put(map, "colorizeSaturation", record.m_colorizeSaturation, 0.0);
    Put(map, "contrast", record.m_contrast, 0.0);
    PutRecord(map, "detailsEnhance", record.m_detailsEnhance, ADJUSTER_DEFAULTS.detailsEnhance);
    Put(map, "gamma", record.m_gamma, 0.0);
    Put(map, "highlights", record.m_highlights, 0.0);
    Put(map, "highlightsIntensity", record.m_highlightsIntensity, 1.0);
    Put(map, "hue", record.m_hue, 0.0);
    Put(map, "hueIntensity", record.m_hueIntensity, 1.0);
    Put(map, "shadows", record.m_shadows, 0.0);
    Put(map, "shadowsIntensity", record.m_shadowsIntensity, 1.0);
    PutRecord(map, "smartBlur", record.m_smartBlur, ADJUSTER_DEFAULTS.smartBlur);
    Put(map, "temperature", record.m_temperature, 0.0);
    Put(map, "temperatureIntensity", record.m_temperatureIntensity, 1.0);
    PutRecord(map, "vibrance", record.m_vibrance, ADJUSTER_DEFAULTS.vibrance);
}

template <class Map> void ReadFields(const Map& map, Proc::SettingsEffectAdjuster& record)
{
    record.m_brightness = Take(map, "brightness", 0.0);
    TakeRecord(map, "colorBalance", record.m_colorBalance, ADJUSTER_DEFAULTS.colorBalance);
    TakeRecord(map, "colorBalanceAuto", record.m_colorBalanceAuto, ADJUSTER_DEFAULTS.colorBalanceAuto);
    record.m_colorizeHue = Take(map, "colorizeHue", 0.0);
    record.m_colorizeIntensity = Take(map, "colorizeIntensity", 1.0);
    record.m_colorizeLightness = Take(map, "colorizeLightness", 0.0);
    record.m_colorizeSaturation = Take(map, "colorizeSaturation", 0.0);
    record.m_contrast = Take(map, "contrast", 0.0);
    TakeRecord(map, "detailsEnhance", record.m_detailsEnhance, ADJUSTER_DEFAULTS.detailsEnhance);
    record.m_gamma = Take(map, "gamma", 0.0);
    record.m_highlights = Take(map, "highlights", 0.0);
    record.m_highlightsIntensity = Take(map, "highlightsIntensity", 1.0);
    record.m_hue = Take(map, "hue", 0.0);
    record.m_hueIntensity = Take(map, "hueIntensity", 1.0);
    record.m_shadows = Take(map, "shadows", 0.0);
    record.m_shadowsIntensity = Take(map, "shadowsIntensity", 1.0);
    TakeRecord(map, "smartBlur", record.m_smartBlur, ADJUSTER_DEFAULTS.smartBlur);
    record.m_temperature = Take(map, "temperature", 0.0);
    record.m_temperatureIntensity = Take(map, "temperatureIntensity", 1.0);
    TakeRecord(map, "vibrance", record.m_vibrance, ADJUSTER_DEFAULTS.vibrance);
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
