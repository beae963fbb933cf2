#include "support/TreeText.h"

#include <ostream>

namespace Ombrel
{
namespace
{

void PrintScalar(const PropertyTreeScalar& scalar, std::ostream& out)
{
    switch (scalar.kind())
    {
    case PropertyTreeScalar::Kind::Bool:
    {
        bool value = false;
        scalar.convertTo(value);
        out << (value ? "true" : "false");
        break;
    }
    case PropertyTreeScalar::Kind::Integer:
        out << scalar.toInt();
        break;
    case PropertyTreeScalar::Kind::Float:
        out << scalar.toDouble() << 'f';
        break;
    case PropertyTreeScalar::Kind::String:
        out << '"' << scalar.toString() << '"';
        break;
    }
}

} // namespace

void PrintTo(const PropertyTree& tree, std::ostream* out)
{
    const char* separator = "";
    if (tree.isNull())
    {
        *out << "null";
    }
    else if (tree.isScalar())
    {
        PrintScalar(tree.getScalar(), *out);
    }
    else if (tree.isList())
    {
        *out << '[';
        for (const PropertyTree& element : tree.getList())
        {
            *out << separator;
            PrintTo(element, out);
            separator = ", ";
        }
        *out << ']';
    }
    else
    {
        *out << '{';
        for (const auto& [key, child] : tree.getMap())
        {
            *out << separator << key << ": ";
            PrintTo(child, out);
            separator = ", ";
        }
        *out << '}';
    }
}

} // namespace Ombrel

namespace Support
{

Ombrel::PropertyTree Map(std::initializer_list<std::pair<std::string_view, Ombrel::PropertyTree>> entries)
{
    Ombrel::PropertyTree tree;
    tree.convertToMap();
    for (const auto& [key, child] : entries)
    {
        tree[key] = child;
    }
    return tree;
}

Ombrel::PropertyTree List(std::initializer_list<Ombrel::PropertyTree> elements)
{
    Ombrel::PropertyTree tree;
    tree.convertToList();
    for (const Ombrel::PropertyTree& element : elements)
    {
        tree.append(element);
    }
    return tree;
}

} // namespace Support
