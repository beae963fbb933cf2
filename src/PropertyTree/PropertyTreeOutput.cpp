#include "PropertyTree/PropertyTreeOutput.h"

#include "PropertyTree/Characters.h"

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

void WriteEscaped(std::ostream& out, char character)
{
    constexpr std::string_view escaped = "\"\\\n\t\r";
    constexpr std::string_view letters = "\"\\ntr";
    if (const std::size_t index = escaped.find(character); index != std::string_view::npos)
    {
        const char text[] = {'\\', letters[index]};
        Write(out, {text, std::size(text)});
        return;
    }
    const auto [high, low] = HexDigits(static_cast<unsigned char>(character));
    const char text[] = {'\\', 'x', high, low};
    Write(out, {text, std::size(text)});
}

void WriteQuoted(std::ostream& out, std::string_view text)
{
    Write(out, "\"");
    std::size_t begin = 0;
    for (std::size_t i = 0; i != text.size();)
    {
        const std::string_view rest = text.substr(i);
        const std::size_t size = Utf8Length(rest);
        if (size != 0 && !IsControl(rest) && text[i] != '"' && text[i] != '\\')
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
