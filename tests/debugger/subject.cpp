// A program to look at with a debugger: it stops in Stop(), with these trees in reach.

#include "PropertyTree/PropertyTree.h"

#include <string>

using Ombrel::PropertyTree;
using Ombrel::PropertyTreeScalar;

void Stop(const PropertyTree& tree, const PropertyTree::Map& map, const PropertyTreeScalar& scalar)
{
    static_cast<void>(tree.contains("here") || map.contains("here") || scalar.kind() == PropertyTreeScalar::Kind::Bool);
}

int main()
{
    PropertyTree null;
    PropertyTree flag = true;
    PropertyTree number = -5;
    PropertyTree real = 0.5;
    PropertyTree text = "a \"short\" text";
    PropertyTree longText = std::string(40, 'x');
    PropertyTree list;
    list.append(1);
    list.append("two");
    list.append(PropertyTree());
    PropertyTree empty;
    empty.convertToMap();
    PropertyTree map;
    map["name"] = "EFFECT_ACID";
    map["radius"] = 3;
    map["trace"] = list;
    PropertyTree gaps = empty;
    gaps.getMap().reserve(4);
    for (const char* key : {"a", "b", "c", "d"})
    {
        gaps[key] = key;
    }
    gaps.getMap().erase("a");
    gaps.getMap().erase("c");
    PropertyTree falling; // keys that do not come in order make an index
    for (const char* key : {"c", "b", "a"})
    {
        falling[key] = key;
    }
    PropertyTree large; // of several leaves
    for (int i = 0; i < 600; ++i)
    {
        large["key " + std::to_string(1000 + i * 7 % 600)] = i;
    }
    PropertyTreeScalar scalar = 2.5;
    Stop(map, large.getMap(), scalar);
}
