#ifndef OMBREL_BENCHMARKS_HAND_WRITTEN_LISTS_H
#define OMBREL_BENCHMARKS_HAND_WRITTEN_LISTS_H

#include "HandWrittenRecords.h"
#include "Proc/Settings/SettingsEffectBiColorToning.h"
#include "Proc/Settings/SettingsEffectBlurRadial.h"
#include "Proc/Settings/SettingsEffectFaceThinning.h"
#include "Proc/Settings/SettingsEffectGradient.h"
#include "Proc/Settings/SettingsEffectNegateVideo.h"

#include <array>
#include <cstdint>
#include <set>
#include <utility>

/// The same for records with colours, enumerations, points, sets and colour maps.
namespace Ombrel::Benchmarks
{

template <class Enum, std::size_t Size> using NameTable = std::array<std::pair<const char*, Enum>, Size>;

template <class Enum, std::size_t Size> Constant NameOf(const NameTable<Enum, Size>& table, Enum value)
{
    for (const auto& [name, named] : table)
    {
        if (named == value)
        {
            return {name};
        }
    }
    return {""};
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

template <class Sink>
void PutColor(Sink& sink, std::string_view key, const Proc::RgbaColor& color, const Proc::RgbaColor& fallback)
{
    PutIf(sink, color != fallback, [&](auto& map) { map.Put(key, ToText(color)); });
}

template <class Cursor> Proc::RgbaColor TakeColor(Cursor& cursor, std::string_view key, Proc::RgbaColor fallback)
{
    cursor.Find(key, [&](const auto& value) { fallback = Proc::ColorFromText(Cursor::Format::TextOf(value)); });
    return fallback;
}

template <class Sink, class Points> void PutPoints(Sink& sink, std::string_view key, const Points& points)
{
    PutIf(sink, !points.empty(),
          [&](auto& map)
          {
              auto list = map.PutList(key, points.size());
              for (const auto& point : points)
              {
                  const std::size_t count = (point.m_x != 0 ? 1U : 0U) + (point.m_y != 0 ? 1U : 0U);
                  auto entry = list.AddMap(count);
                  Put(entry, "x", point.m_x, 0);
                  Put(entry, "y", point.m_y, 0);
              }
          });
}

// Calls `read` with a cursor for each map of the list under the key. `reserve` is told how many they are, where that is known
// without counting.
template <class Cursor, class Reserve, class Read>
bool TakeMaps(Cursor& cursor, std::string_view key, const Reserve& reserve, const Read& read)
{
    using Format = typename Cursor::Format;
    return cursor.Find(key,
                       [&](const auto& value)
                       {
                           auto&& elements = Format::ElementsOf(value);
                           if constexpr (requires { Format::SizeOf(elements); })
                           {
                               reserve(Format::SizeOf(elements));
                           }
                           for (typename Format::Element element : elements)
                           {
                               auto map = Format::CursorOf(element);
                               read(map);
                           }
                       });
}

template <class Cursor, class Points> void TakePoints(Cursor& cursor, std::string_view key, Points& points)
{
    points.clear();
    TakeMaps(
        cursor, key, [&](std::size_t count) { points.reserve(count); },
        [&](auto& map)
        {
            const int x = Take(map, "x", 0);
            points.push_back({x, Take(map, "y", 0)});
        });
}

// EFFECT_BI_COLOR_TONING

template <class Sink> void WriteFields(Sink& sink, const Proc::SettingsEffectBiColorToning& record)
{
    PutColor(sink, "colorFirst", record.m_colorFirst, {0, 0, 0, 255});
    PutColor(sink, "colorSecond", record.m_colorSecond, {255, 255, 255, 255});
    PutId(sink, record);
}

template <class Cursor> void ReadFields(Cursor& cursor, Proc::SettingsEffectBiColorToning& record)
{
    record.m_colorFirst = TakeColor(cursor, "colorFirst", {0, 0, 0, 255});
    record.m_colorSecond = TakeColor(cursor, "colorSecond", {255, 255, 255, 255});
}

inline bool Same(const Proc::SettingsEffectBiColorToning& a, const Proc::SettingsEffectBiColorToning& b)
{
    return a.m_colorFirst == b.m_colorFirst && a.m_colorSecond == b.m_colorSecond;
}

// EFFECT_BLUR_RADIAL

using RadialMode = Proc::SettingsEffectBlurRadial::BlurRadialMode;

inline constexpr NameTable<RadialMode, 3> RADIAL_MODES{
    {{"Radial", RadialMode::Radial}, {"Linear", RadialMode::Linear}, {"Custom", RadialMode::Custom}}};

template <class Sink> void WriteFields(Sink& sink, const Proc::SettingsEffectBlurRadial& record)
{
    Put(sink, "angle", record.m_angle, 0.0);
    PutIf(sink, record.m_mode != RadialMode::Radial, [&](auto& map) { map.Put("mode", NameOf(RADIAL_MODES, record.m_mode)); });
    PutId(sink, record);
    Put(sink, "strength", record.m_strength, 0.0);
    PutPoints(sink, "trace", record.m_trace);
    Put(sink, "x", record.m_x, 0.0);
    Put(sink, "y", record.m_y, 0.0);
}

template <class Cursor> void ReadFields(Cursor& cursor, Proc::SettingsEffectBlurRadial& record)
{
    record.m_angle = Take(cursor, "angle", 0.0);
    record.m_mode = RadialMode::Radial;
    cursor.Find("mode", [&](const auto& value) { record.m_mode = ValueOf(RADIAL_MODES, Cursor::Format::TextOf(value)); });
    record.m_strength = Take(cursor, "strength", 0.0);
    TakePoints(cursor, "trace", record.m_trace);
    record.m_x = Take(cursor, "x", 0.0);
    record.m_y = Take(cursor, "y", 0.0);
}

inline bool Same(const Proc::SettingsEffectBlurRadial& a, const Proc::SettingsEffectBlurRadial& b)
{
    return a.m_mode == b.m_mode && a.m_x == b.m_x && a.m_y == b.m_y && a.m_strength == b.m_strength && a.m_angle == b.m_angle &&
           a.m_trace == b.m_trace;
}

// EFFECT_FACE_THINNING

using Outline = decltype(Proc::SettingsEffectFaceThinning::m_faceOutline);

template <class Sink> void WriteFields(Sink& sink, const Outline& outline)
{
    PutPoints(sink, "contour", outline.m_contour);
}

template <class Cursor> void ReadFields(Cursor& cursor, Outline& outline)
{
    TakePoints(cursor, "contour", outline.m_contour);
}

template <class Sink> void WriteFields(Sink& sink, const Proc::SettingsEffectFaceThinning& record)
{
    PutRecord(sink, "faceOutline", !record.m_faceOutline.m_contour.empty(), record.m_faceOutline);
    PutId(sink, record);
    Put(sink, "strength", record.m_strength, 0.0);
}

template <class Cursor> void ReadFields(Cursor& cursor, Proc::SettingsEffectFaceThinning& record)
{
    TakeRecord(cursor, "faceOutline", record.m_faceOutline, {});
    record.m_strength = Take(cursor, "strength", 0.0);
}

inline bool Same(const Proc::SettingsEffectFaceThinning& a, const Proc::SettingsEffectFaceThinning& b)
{
    return a.m_faceOutline == b.m_faceOutline && a.m_strength == b.m_strength;
}

// EFFECT_GRADIENT

template <class Sink> void WriteFields(Sink& sink, const Proc::SettingsEffectGradient& record)
{
    PutIf(sink, !record.m_gradient.empty(),
          [&](auto& map)
          {
              auto list = map.PutList("gradient", record.m_gradient.size());
              for (const auto& [tone, color] : record.m_gradient)
              {
                  auto entry = list.AddMap(2);
                  entry.Put("key", std::int64_t{tone});
                  entry.Put("value", ToText(color));
              }
          });
    PutId(sink, record);
}

template <class Cursor> void ReadFields(Cursor& cursor, Proc::SettingsEffectGradient& record)
{
    record.m_gradient.clear();
    TakeMaps(
        cursor, "gradient", [](std::size_t) {},
        [&](auto& map)
        {
            const auto tone = static_cast<std::uint8_t>(Take(map, "key", std::int64_t{0}));
            record.m_gradient.insert_or_assign(record.m_gradient.end(), tone, TakeColor(map, "value", {}));
        });
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

template <class Sink> void WriteFields(Sink& sink, const Proc::SettingsEffectNegateVideo& record)
{
    PutIf(sink, !record.IsEmpty(),
          [&](auto& map)
          {
              const std::set<NegatedChannel> channels = record.GetMode();
              auto list = map.PutList("mode", channels.size());
              for (const NegatedChannel channel : channels)
              {
                  list.Add(NameOf(NEGATED_CHANNELS, channel));
              }
          });
    PutId(sink, record);
}

template <class Cursor> void ReadFields(Cursor& cursor, Proc::SettingsEffectNegateVideo& record)
{
    using Format = typename Cursor::Format;
    std::set<NegatedChannel> channels;
    cursor.Find("mode",
                [&](const auto& value)
                {
                    for (typename Format::Element element : Format::ElementsOf(value))
                    {
                        channels.insert(ValueOf(NEGATED_CHANNELS, Format::TextOf(element)));
                    }
                });
    record.SetMode(channels);
}

inline bool Same(const Proc::SettingsEffectNegateVideo& a, const Proc::SettingsEffectNegateVideo& b)
{
    return a == b;
}

} // namespace Ombrel::Benchmarks

#endif
