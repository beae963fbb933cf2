#ifndef OMBREL_PROC_SETTINGS_RGBA_COLOR_CODEC_H
#define OMBREL_PROC_SETTINGS_RGBA_COLOR_CODEC_H

#include "OmbrelExport.h"
#include "Proc/Reflection/Codec.h"
#include "Proc/Reflection/Reflected.h"
#include "Proc/Settings/RgbaColor.h"

#include <cstdint>
#include <map>

namespace Ombrel::Proc
{

OMBREL_API void WriteColor(PropertyTree& child, const RgbaColor& color);
OMBREL_API RgbaColor ReadColor(const PropertyTree& child);

template <> struct Codec<RgbaColor>
{
    static constexpr ValueSchema SCHEMA{ValueKind::Color};

    static void Write(PropertyTree& child, const RgbaColor& value, const WriteFlags*) { WriteColor(child, value); }
    static void Read(const PropertyTree& child, RgbaColor& value, const ReadFlags*) { value = ReadColor(child); }
};

/// An element of a stored colour map. It is always written whole.
struct StoredColor
{
    OMBREL_API static const RecordSchema& Schema() noexcept;

    std::uint8_t m_key = 0;
    RgbaColor m_value;
};

/// As a list of maps with "key" and "value", in ascending order of the keys. On reading, entries that the list does not name
/// stay, and a key that stands twice takes the later colour.
template <> struct Codec<std::map<std::uint8_t, RgbaColor>>
{
    using Value = std::map<std::uint8_t, RgbaColor>;

    static constexpr ValueSchema SCHEMA{.kind = ValueKind::ColorMap, .element = &SCHEMA_OF<StoredColor>};

    OMBREL_API static void Write(PropertyTree& child, const Value& value, const WriteFlags* flags);
    OMBREL_API static void Read(const PropertyTree& child, Value& value, const ReadFlags* flags);
};

} // namespace Ombrel::Proc

#endif
