#include "PropertyTree/PropertyTreeOutput.h"

#include <charconv>
#include <cstddef>
#include <iterator>
#include <ostream>
#include <string_view>
#include <vector>

namespace Ombrel
{
namespace
{

// Unformatted, so that nothing but the text is written, whatever the stream is set to.
void Write(std::ostream& out, std::string_view text)
{
    out.write(text.data(), static_cast<std::streamsize>(text.size()));
}

// The bytes of the character that `text` begins with, or 0 if that is no valid UTF-8 or is a control character.
std::size_t SizeOfCharacter(std::string_view text)
{
    const auto byteAt = [text](std::size_t i) { return i < text.size() ? static_cast<unsigned char>(text[i]) : 0u; };
    const unsigned first = byteAt(0);
    if (first < 0x80)
    {
        return first >= 0x20 && first != 0x7f ? 1 : 0;
    }
    if (first < 0xc0 || first > 0xf4)
    {
        return 0;
    }
    const std::size_t size = first < 0xe0 ? 2 : first < 0xf0 ? 3 : 4;
    unsigned code = first & (0x7fu >> size);
    for (std::size_t i = 1; i != size; ++i)
    {
        if ((byteAt(i) & 0xc0) != 0x80)
        {
            return 0;
        }
        code = code << 6 | (byteAt(i) & 0x3f);
    }
    constexpr unsigned smallest[] = {0xa0, 0x800, 0x10000}; // of so many bytes; U+0080 to U+009F are control characters
    const bool isSurrogate = code >= 0xd800 && code <= 0xdfff;
    return code >= smallest[size - 2] && code <= 0x10ffff && !isSurrogate ? size : 0;
}

void WriteEscaped(std::ostream& out, char character)
{
    constexpr std::string_view escaped = "\"\\\n\t\r";
    constexpr std::string_view letters = "\"\\ntr";
    constexpr std::string_view digits = "0123456789abcdef";
    if (const std::size_t index = escaped.find(character); index != std::string_view::npos)
    {
        const char text[] = {'\\', letters[index]};
        Write(out, {text, std::size(text)});
        return;
    }
    const auto byte = static_cast<unsigned char>(character);
    const char text[] = {'\\', 'x', digits[byte >> 4], digits[byte & 15]};
    Write(out, {text, std::size(text)});
}

void WriteQuoted(std::ostream& out, std::string_view text)
{
    Write(out, "\"");
    std::size_t begin = 0;
    for (std::size_t i = 0; i != text.size();)
    {
        const std::size_t size = SizeOfCharacter(text.substr(i));
        if (size != 0 && text[i] != '"' && text[i] != '\\')
        {
            i += size;
            continue;
        }
        Write(out, text.substr(begin, i - begin));
        WriteEscaped(out, text[i]);
        begin = ++i;
    }
    Write(out, text.substr(begin));
    Write(out, "\"");
}

template <class Number> void WriteNumber(std::ostream& out, Number number, std::string_view isFloat, std::string_view ending)
{
    char text[32]; // the longest is -2.2250738585072014e-308
    const char* const end = std::to_chars(std::begin(text), std::end(text), number).ptr;
    const std::string_view digits(text, static_cast<std::size_t>(end - text));
    Write(out, digits);
    if (digits.find_first_of(isFloat) == std::string_view::npos)
    {
        Write(out, ending);
    }
}

void WriteScalar(std::ostream& out, const PropertyTreeScalar& scalar)
{
    switch (scalar.kind())
    {
    case PropertyTreeScalar::Kind::Bool:
    {
        bool value = false;
        scalar.convertTo(value);
        Write(out, value ? "true" : "false");
        break;
    }
    case PropertyTreeScalar::Kind::Integer:
        WriteNumber(out, scalar.toInt(), "", "");
        break;
    case PropertyTreeScalar::Kind::Float:
        WriteNumber(out, scalar.toDouble(), ".en", ".0"); // inf and nan have an n
        break;
    case PropertyTreeScalar::Kind::String:
        WriteQuoted(out, scalar.toString());
        break;
    }
}

// A map or a list of which some children are written.
struct OpenTree
{
    // What comes before the next child, which is the result; after the last one it is the closing bracket, and the result null.
    const PropertyTree* WriteToNextChild(std::ostream& out)
    {
        const char* const separator = written == 0 ? "" : ", ";
        if (tree->isList())
        {
            const PropertyTree::List& list = tree->getList();
            Write(out, written == list.size() ? "]" : separator);
            return written == list.size() ? nullptr : &list[written++];
        }
        const PropertyTree::Map& map = tree->getMap();
        entry = written == 0 ? map.begin() : std::next(entry);
        if (entry == map.end())
        {
            Write(out, "}");
            return nullptr;
        }
        Write(out, separator);
        WriteQuoted(out, entry->first);
        Write(out, ": ");
        ++written;
        return &entry->second;
    }

    const PropertyTree* tree;
    std::size_t written = 0;
    PropertyTree::Map::const_iterator entry{};
};

} // namespace

void Print(std::ostream& out, const PropertyTree& tree)
{
    out.width(0);
    std::vector<OpenTree> open;
    const PropertyTree* next = &tree;
    while (next && out)
    {
        if (next->isNull())
        {
            Write(out, "null");
        }
        else if (next->isScalar())
        {
            WriteScalar(out, next->getScalar());
        }
        else
        {
            Write(out, next->isList() ? "[" : "{");
            open.push_back({next});
        }
        next = nullptr;
        while (!next && !open.empty())
        {
            next = open.back().WriteToNextChild(out);
            if (!next)
            {
                open.pop_back();
            }
        }
    }
}

void Print(std::ostream& out, const PropertyTreeScalar& scalar)
{
    out.width(0);
    WriteScalar(out, scalar);
}

} // namespace Ombrel
