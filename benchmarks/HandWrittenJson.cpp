#include "HandWrittenJson.h"

#include <nlohmann/json.hpp>

#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <stdexcept>
#include <utility>
#include <vector>

namespace Ombrel::Benchmarks
{
namespace
{

void AppendString(std::string& out, std::string_view text)
{
    out += '"';
    for (const char c : text)
    {
        if (c == '"' || c == '\\')
        {
            out += '\\';
            out += c;
        }
        else if (static_cast<unsigned char>(c) < 0x20)
        {
            constexpr char digits[] = "0123456789abcdef";
            out += "\\u00";
            out += digits[c >> 4];
            out += digits[c & 0xf];
        }
        else
        {
            out += c;
        }
    }
    out += '"';
}

template <class Number> std::string_view AppendNumber(std::string& out, Number number)
{
    char buffer[32];
    char* const end = std::to_chars(buffer, buffer + sizeof(buffer), number).ptr;
    const std::size_t start = out.size();
    out.append(std::begin(buffer), end);
    return std::string_view(out).substr(start);
}

void AppendFloat(std::string& out, double number)
{
    if (!std::isfinite(number))
    {
        throw std::invalid_argument("no finite number");
    }
    if (AppendNumber(out, number).find_first_of(".e") == std::string_view::npos)
    {
        out += ".0";
    }
}

void AppendScalar(std::string& out, const PropertyTreeScalar& scalar)
{
    switch (scalar.kind())
    {
    case PropertyTreeScalar::Kind::Bool:
    {
        bool value = false;
        scalar.convertTo(value);
        out += value ? "true" : "false";
        break;
    }
    case PropertyTreeScalar::Kind::Integer:
        AppendNumber(out, scalar.toInt());
        break;
    case PropertyTreeScalar::Kind::Float:
        AppendFloat(out, scalar.toDouble());
        break;
    case PropertyTreeScalar::Kind::String:
        AppendString(out, scalar.toString());
        break;
    }
}

void AppendTree(std::string& out, const PropertyTree& tree)
{
    if (tree.isNull())
    {
        out += "null";
    }
    else if (tree.isScalar())
    {
        AppendScalar(out, tree.getScalar());
    }
    else if (tree.isList())
    {
        char before = '[';
        for (const PropertyTree& element : tree.getList())
        {
            out += std::exchange(before, ',');
            AppendTree(out, element);
        }
        out += before == '[' ? "[]" : "]";
    }
    else
    {
        char before = '{';
        for (const auto& [key, child] : tree.getMap())
        {
            out += std::exchange(before, ',');
            AppendString(out, key);
            out += ':';
            AppendTree(out, child);
        }
        out += before == '{' ? "{}" : "}";
    }
}

class TreeBuilder
{
public:
    explicit TreeBuilder(PropertyTree& root) : m_place(&root) {}

    bool null() { return Put(PropertyTree()); }
    bool boolean(bool value) { return Put(PropertyTree(value)); }
    bool number_integer(std::int64_t value) { return Put(PropertyTree(value)); }

    bool number_unsigned(std::uint64_t value)
    {
        return value <= static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max()) && Put(PropertyTree(value));
    }

    bool number_float(double value, const std::string&) { return Put(PropertyTree(value)); }
    bool string(std::string& value) { return Put(PropertyTree(std::move(value))); }
    bool binary(nlohmann::json::binary_t&) { return false; }

    bool start_object(std::size_t)
    {
        m_open.push_back(&Place());
        m_open.back()->convertToMap();
        return true;
    }

    bool key(std::string& name)
    {
        PropertyTree::Map& map = m_open.back()->getMap();
        const std::size_t sizeBefore = map.size();
        m_place = &map[name];
        return map.size() != sizeBefore;
    }

    bool end_object() { return Close(); }

    bool start_array(std::size_t)
    {
        m_open.push_back(&Place());
        m_open.back()->convertToList();
        return true;
    }

    bool end_array() { return Close(); }

    bool parse_error(std::size_t, const std::string&, const nlohmann::json::exception&) { return false; }

private:
    PropertyTree& Place()
    {
        return !m_open.empty() && m_open.back()->isList() ? m_open.back()->getList().emplace_back() : *m_place;
    }

    bool Put(PropertyTree&& value)
    {
        Place() = std::move(value);
        return true;
    }

    bool Close()
    {
        m_open.pop_back();
        return true;
    }

    PropertyTree* m_place;             // of the next value, unless it is an element of a list
    std::vector<PropertyTree*> m_open; // none of them moves, since only the innermost grows
};

} // namespace

std::string HandWriteJson(const PropertyTree& tree)
{
    std::string out;
    AppendTree(out, tree);
    return out;
}

PropertyTree HandReadJson(std::string_view text)
{
    PropertyTree tree;
    TreeBuilder builder(tree);
    if (!nlohmann::json::sax_parse(text, &builder))
    {
        throw std::invalid_argument("no JSON text that a tree can hold");
    }
    return tree;
}

} // namespace Ombrel::Benchmarks
