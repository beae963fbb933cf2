#include "Inspection/SchemaParts.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace Ombrel::Inspection
{

namespace
{

// The text as a part of a pointer in a URI.
std::string Escaped(std::string_view text)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    constexpr std::string_view plain = "-._ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";
    std::string escaped;
    for (const char c : text)
    {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '~' || c == '/')
        {
            escaped += c == '~' ? "~0" : "~1";
        }
        else if (plain.find(c) != std::string_view::npos)
        {
            escaped += c;
        }
        else
        {
            escaped += {'%', digits[byte / 16], digits[byte % 16]};
        }
    }
    return escaped;
}

PropertyTree NonFinite()
{
    PropertyTree text;
    text["enum"] = Names(std::vector<std::string>{"NaN", "Infinity", "-Infinity"});
    return text;
}

} // namespace

PropertyTree RefTo(std::string_view name)
{
    PropertyTree ref;
    ref["$ref"] = "#/$defs/" + Escaped(name);
    return ref;
}

PropertyTree OfType(const char* type)
{
    PropertyTree schema;
    schema["type"] = type;
    return schema;
}

PropertyTree IntegerFrom(std::int64_t least, std::int64_t most)
{
    PropertyTree schema = OfType("integer");
    schema["minimum"] = least;
    schema["maximum"] = most;
    return schema;
}

PropertyTree Names(std::span<const std::string> names)
{
    PropertyTree list;
    list.makeList();
    for (const std::string& name : names)
    {
        list.append(name);
    }
    return list;
}

bool IsFinite(const PropertyTree& tree)
{
    std::vector<const PropertyTree*> pending{&tree};
    while (!pending.empty())
    {
        const PropertyTree& value = *pending.back();
        pending.pop_back();
        if (value.isScalar() && value.getScalar().kind() == PropertyTreeScalar::Kind::Float &&
            !std::isfinite(value.getScalar().toDouble()))
        {
            return false;
        }
        if (value.isList())
        {
            std::ranges::for_each(value.getList(), [&](const PropertyTree& element) { pending.push_back(&element); });
        }
        else if (value.isMap())
        {
            std::ranges::for_each(value.getMap(), [&](const auto& entry) { pending.push_back(&entry.second); });
        }
    }
    return true;
}

// `$` may stand before a line end too, but then there are more than eight characters.
PropertyTree Colour()
{
    PropertyTree colour = OfType("string");
    colour["pattern"] = "^[0-9a-f]{8}$";
    colour["maxLength"] = 8;
    return colour;
}

PropertyTree FloatOrText()
{
    PropertyTree either;
    either["anyOf"].append(OfType("number"));
    either["anyOf"].append(NonFinite());
    return either;
}

PropertyTree TextThatIsNoFloat()
{
    PropertyTree text = OfType("string");
    text["not"] = NonFinite();
    return text;
}

// A second name of a number is written as the first.
PropertyTree NameIn(const Proc::EnumNameTable& table)
{
    PropertyTree schema;
    PropertyTree& names = schema["enum"];
    names.makeList();
    for (const Proc::EnumNameRow& row : table.rows)
    {
        if (table.NameOf(row.value) == row.name)
        {
            names.append(std::string(row.name));
        }
    }
    return schema;
}

} // namespace Ombrel::Inspection
