#include "support/TreeText.h"

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
