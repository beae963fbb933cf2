#ifndef OMBREL_BENCHMARKS_HAND_WRITTEN_LISTS_H
#define OMBREL_BENCHMARKS_HAND_WRITTEN_LISTS_H

#include "HandWrittenRecords.h"
#include "Proc/Settings/SettingsEffectBiColorToning.h"
#include "Proc/Settings/SettingsEffectBlurRadial.h"
#include "Proc/Settings/SettingsEffectFaceThinning.h"
#include "Proc/Settings/SettingsEffectGradient.h"
#include "Proc/Settings/SettingsEffectNegateVideo.h"

#include <array>
#include <set>
#include <utility>

/// The same for records with colours, enumerations, points, sets and colour maps, of trees and nlohmann's DOM alone.
namespace Ombrel::Benchmarks
{

using TreeList = PropertyTree::List;
using DomList = Dom::array_t;

template <> inline constexpr std::size_t FIELD_COUNT<Proc::SettingsEffectBiColorToning> = 2;
template <> inline constexpr std::size_t FIELD_COUNT<Proc::SettingsEffectBlurRadial> = 6;
template <> inline constexpr std::size_t FIELD_COUNT<Proc::SettingsEffectFaceThinning> = 2;
template <> inline constexpr std::size_t FIELD_COUNT<Proc::SettingsEffectGradient> = 1;
template <> inline constexpr std::size_t FIELD_COUNT<Proc::SettingsEffectNegateVideo> = 1;

inline TreeList& PutList(TreeMap& map, std::string_view key, std::size_t size)
{
    return map[key].makeList(size);
}

inline DomList& PutList(DomMap& map, std::string_view key, std::size_t size)
{
    auto& list = map.emplace_hint(map.end(), key, Dom::array())->second.get_ref<DomList&>();
    list.reserve(size);
    return list;
}

inline TreeMap& AddMap(TreeList& list, std::size_t fieldCount)
{
    return list.emplace_back().makeMap(fieldCount);
}

inline DomMap& AddMap(DomList& list, std::size_t)
{
    return list.emplace_back(Dom::object()).get_ref<DomMap&>();
}

inline const TreeList& ListOf(const PropertyTree& child)
{
    return child.getList();
}

inline const DomList& ListOf(const Dom& child)
{
    return child.get_ref<const DomList&>();
}

inline const std::string& StringOf(const PropertyTree& child)
{
    return child.getScalar().toString();
}

inline const std::string& StringOf(const Dom& child)
{
    return child.get_ref<const std::string&>();
}

template <class Enum, std::size_t Size> using NameTable = std::array<std::pair<const char*, Enum>, Size>;

template <class Enum, std::size_t Size> std::string NameOf(const NameTable<Enum, Size>& table, Enum value)
{
    for (const auto& [name, named] : table)
    {
        if (named == value)
        {
            return name;
        }
    }
    return {};
}

template <class Enum, std::size_t Size> Enum ValueOf(const NameTable<Enum, Size>& table, std::string_view text)
{
    for (const auto& [name, named] : table)
    {
        if (name == text)
        {
            return named;
        }
    }
    return Enum{};
}

template <class Map>
void PutColor(Map& map, std::string_view key, const Proc::RgbaColor& color, const Proc::RgbaColor& fallback)
{
    if (color != fallback)
    {
        Put(map, key, ToText(color), std::string());
    }
}

template <class Map> Proc::RgbaColor TakeColor(const Map& map, std::string_view key, const Proc::RgbaColor& fallback)
{
    const auto* child = Find(map, key);
    return child ? Proc::ColorFromText(StringOf(*child)) : fallback;
}

template <class Map, class Points> void PutPoints(Map& map, std::string_view key, const Points& points)
{
    if (points.empty())
    {
        return;
    }
    auto& list = PutList(map, key, points.size());
    for (const auto& point : points)
    {
        auto& entry = AddMap(list, 2);
        Put(entry, "x", point.m_x, 0);
        Put(entry, "y", point.m_y, 0);
    }
}

template <class Map, class Points> void TakePoints(const Map& map, std::string_view key, Points& points)
{
    points.clear();
    if (const auto* child = Find(map, key))
    {
        const auto& list = ListOf(*child);
        points.reserve(list.size());
        for (const auto& element : list)
        {
            const auto& entry = MapOf(element);
            points.push_back({Take(entry, "x", 0), Take(entry, "y", 0)});
        }
    }
}

// EFFECT_BI_COLOR_TONING

template <class Map> void WriteFields(Map&& map, const Proc::SettingsEffectBiColorToning& record)
{
    PutColor(map, "colorFirst", record.m_colorFirst, {0, 0, 0, 255});
    PutColor(map, "colorSecond", record.m_colorSecond, {255, 255, 255, 255});
}

template <class Map> void ReadFields(const Map& map, Proc::SettingsEffectBiColorToning& record)
{
    record.m_colorFirst = TakeColor(map, "colorFirst", {0, 0, 0, 255});
    record.m_colorSecond = TakeColor(map, "colorSecond", {255, 255, 255, 255});
}

inline bool Same(const Proc::SettingsEffectBiColorToning& a, const Proc::SettingsEffectBiColorToning& b)
{
    return a.m_colorFirst == b.m_colorFirst && a.m_colorSecond == b.m_colorSecond;
}

// EFFECT_BLUR_RADIAL

using RadialMode = Proc::SettingsEffectBlurRadial::BlurRadialMode;

inline constexpr NameTable<RadialMode, 3> RADIAL_MODES{
    {{"Radial", RadialMode::Radial}, {"Linear", RadialMode::Linear}, {"Custom", RadialMode::Custom}}};

template <class Map> void WriteFields(Map&& map, const Proc::SettingsEffectBlurRadial& record)
{
    Put(map, "angle", record.m_angle, 0.0);
    if (record.m_mode != RadialMode::Radial)
    {
        Put(map, "mode", NameOf(RADIAL_MODES, record.m_mode), std::string());
    }
    Put(map, "strength", record.m_strength, 0.0);
    PutPoints(map, "trace", record.m_trace);
    Put(map, "x", record.m_x, 0.0);
    Put(map, "y", record.m_y, 0.0);
}

template <class Map> void ReadFields(const Map& map, Proc::SettingsEffectBlurRadial& record)
{
    record.m_angle = Take(map, "angle", 0.0);
    const auto* mode = Find(map, "mode");
    record.m_mode = mode ? ValueOf(RADIAL_MODES, StringOf(*mode)) : RadialMode::Radial;
    record.m_strength = Take(map, "strength", 0.0);
    TakePoints(map, "trace", record.m_trace);
    record.m_x = Take(map, "x", 0.0);
    record.m_y = Take(map, "y", 0.0);
}

inline bool Same(const Proc::SettingsEffectBlurRadial& a, const Proc::SettingsEffectBlurRadial& b)
{
    return a.m_mode == b.m_mode && a.m_x == b.m_x && a.m_y == b.m_y && a.m_strength == b.m_strength && a.m_angle == b.m_angle &&
           a.m_trace == b.m_trace;
}

// EFFECT_FACE_THINNING

template <class Map> void WriteFields(Map&& map, const Proc::SettingsEffectFaceThinning& record)
{
    if (!record.m_faceOutline.m_contour.empty())
    {
        PutPoints(PutMap(map, "faceOutline", 1), "contour", record.m_faceOutline.m_contour);
    }
    Put(map, "strength", record.m_strength, 0.0);
}

template <class Map> void ReadFields(const Map& map, Proc::SettingsEffectFaceThinning& record)
{
    if (const auto* outline = Find(map, "faceOutline"))
    {
        TakePoints(MapOf(*outline), "contour", record.m_faceOutline.m_contour);
    }
    else
    {
        record.m_faceOutline.m_contour.clear();
    }
    record.m_strength = Take(map, "strength", 0.0);
}

inline bool Same(const Proc::SettingsEffectFaceThinning& a, const Proc::SettingsEffectFaceThinning& b)
{
    return a.m_faceOutline == b.m_faceOutline && a.m_strength == b.m_strength;
}

// EFFECT_GRADIENT

template <class Map> void WriteFields(Map&& map, const Proc::SettingsEffectGradient& record)
{
    if (record.m_gradient.empty())
    {
        return;
    }
    auto& list = PutList(map, "gradient", record.m_gradient.size());
    for (const auto& [tone, color] : record.m_gradient)
    {
        auto& entry = AddMap(list, 2);
        Put(entry, "key", std::int64_t{tone}, std::int64_t{-1});
        Put(entry, "value", ToText(color), std::string());
    }
}

template <class Map> void ReadFields(const Map& map, Proc::SettingsEffectGradient& record)
{
    const auto* child = Find(map, "gradient");
    if (!child)
    {
        record.m_gradient.clear();
        return;
    }
    for (const auto& element : ListOf(*child))
    {
        const auto& entry = MapOf(element);
        const auto tone = static_cast<std::uint8_t>(Take(entry, "key", std::int64_t{0}));
        record.m_gradient.insert_or_assign(tone, TakeColor(entry, "value", {}));
    }
}

inline bool Same(const Proc::SettingsEffectGradient& a, const Proc::SettingsEffectGradient& b)
{
    return a.m_gradient == b.m_gradient;
}

// EFFECT_NEGATE_VIDEO

using NegatedChannel = Proc::SettingsEffectNegateVideo::Channel;

inline constexpr NameTable<NegatedChannel, 4> NEGATED_CHANNELS{{{"Red", NegatedChannel::Red},
                                                                {"Green", NegatedChannel::Green},
                                                                {"Blue", NegatedChannel::Blue},
                                                                {"Alpha", NegatedChannel::Alpha}}};

template <class Map> void WriteFields(Map&& map, const Proc::SettingsEffectNegateVideo& record)
{
    const std::set<NegatedChannel> channels = record.GetMode();
    if (channels.empty())
    {
        return;
    }
    auto& list = PutList(map, "mode", channels.size());
    for (const NegatedChannel channel : channels)
    {
        list.emplace_back(NameOf(NEGATED_CHANNELS, channel));
    }
}

template <class Map> void ReadFields(const Map& map, Proc::SettingsEffectNegateVideo& record)
{
    std::set<NegatedChannel> channels;
    if (const auto* child = Find(map, "mode"))
    {
        for (const auto& element : ListOf(*child))
        {
            channels.insert(ValueOf(NEGATED_CHANNELS, StringOf(element)));
        }
    }
    record.SetMode(channels);
}

inline bool Same(const Proc::SettingsEffectNegateVideo& a, const Proc::SettingsEffectNegateVideo& b)
{
    return a == b;
}

} // namespace Ombrel::Benchmarks

#endif
