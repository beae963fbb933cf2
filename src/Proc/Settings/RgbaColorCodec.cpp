#include "Proc/Settings/RgbaColorCodec.h"

namespace Ombrel::Proc
{
namespace
{

constexpr std::string_view KEY = "key";
constexpr std::string_view VALUE = "value";

} // namespace

void WriteColor(PropertyTree& child, const RgbaColor& color)
{
    child = PropertyTreeScalar(ToText(color));
}

RgbaColor ReadColor(const PropertyTree& child)
{
    return ColorFromText(child.getScalar().toCString()); // a zero inside ends the text
}

void Codec<std::map<std::uint8_t, RgbaColor>>::Write(PropertyTree& child, const Value& value, const WriteFlags*)
{
    auto target = WriteList(child, value.size()).begin();
    for (const auto& [key, color] : value)
    {
        PropertyTree& element = *target++;
        WriteInteger(element[KEY], key);
        WriteColor(element[VALUE], color);
    }
}

void Codec<std::map<std::uint8_t, RgbaColor>>::Read(const PropertyTree& child, Value& value, const ReadFlags*)
{
    if (!child.isList())
    {
        return;
    }
    for (const PropertyTree& element : child.getList())
    {
        const auto key = static_cast<std::uint8_t>(ReadInteger(element[KEY]));
        value.insert_or_assign(key, ReadColor(element[VALUE]));
    }
}

} // namespace Ombrel::Proc
