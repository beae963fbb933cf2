// Calls on a tree that would compile, and crash or mean something else, if they were not refused. Each line that ends with
// "refused" is one error, with MUST_FAIL defined; without, its twins compile.

#include "PropertyTree/PropertyTree.h"

#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

using Ombrel::PropertyTree;
using Ombrel::PropertyTreeScalar;

#ifdef MUST_FAIL

void NullsAsValues(PropertyTree& tree, const PropertyTreeScalar& scalar)
{
    tree["x"] = nullptr;                            // refused
    tree = nullptr;                                 // refused
    static_cast<void>(PropertyTree(nullptr));       // refused
    PropertyTree copied = nullptr;                  // refused
    static_cast<void>(PropertyTree{nullptr});       // refused
    static_cast<void>(tree == nullptr);             // refused
    static_cast<void>(nullptr != tree);             // refused
    static_cast<void>(scalar == nullptr);           // refused
    static_cast<void>(PropertyTreeScalar(nullptr)); // refused
    tree.append(nullptr);                           // refused
    tree.getMap().try_emplace("x", nullptr);        // refused
    tree.getMap().insert_or_assign("x", nullptr);   // refused
}

void NullsAsKeys(PropertyTree& tree, const PropertyTree& constant, PropertyTree value)
{
    tree[0];                // refused
    tree[nullptr];          // refused
    tree[NULL];             // refused
    constant[0];            // refused
    constant[nullptr];      // refused
    tree.contains(0);       // refused
    tree.contains(nullptr); // refused
    PropertyTree::Map& map = tree.getMap();
    const PropertyTree::Map& constantMap = map;
    map[0];                               // refused
    map[nullptr];                         // refused
    map.find(0);                          // refused
    map.find(nullptr);                    // refused
    constantMap.find(0);                  // refused
    constantMap.find(nullptr);            // refused
    map.contains(0);                      // refused
    map.contains(nullptr);                // refused
    map.count(0);                         // refused
    map.count(nullptr);                   // refused
    map.at(0);                            // refused
    map.at(nullptr);                      // refused
    constantMap.at(0);                    // refused
    constantMap.at(nullptr);              // refused
    map.erase(0);                         // refused
    map.erase(nullptr);                   // refused
    map.lower_bound(0);                   // refused
    map.lower_bound(nullptr);             // refused
    constantMap.lower_bound(0);           // refused
    constantMap.lower_bound(nullptr);     // refused
    map.upper_bound(0);                   // refused
    map.upper_bound(nullptr);             // refused
    constantMap.upper_bound(0);           // refused
    constantMap.upper_bound(nullptr);     // refused
    map.equal_range(0);                   // refused
    map.equal_range(nullptr);             // refused
    constantMap.equal_range(0);           // refused
    constantMap.equal_range(nullptr);     // refused
    map.try_emplace(0, std::move(value)); // refused
    map.try_emplace(nullptr, value);      // refused
    map.insert_or_assign(0, value);       // refused
    map.insert_or_assign(nullptr, value); // refused
    map.emplace(0, value);                // refused
    map.emplace(nullptr, value);          // refused
}

void Characters(PropertyTree& tree, PropertyTreeScalar& scalar, char narrow, wchar_t wide, char8_t eight, char16_t sixteen,
                char32_t thirtyTwo)
{
    tree = narrow;                                    // refused
    tree = wide;                                      // refused
    tree = eight;                                     // refused
    tree = sixteen;                                   // refused
    tree = thirtyTwo;                                 // refused
    tree = 'a';                                       // refused
    tree["x"] = '\0';                                 // refused
    static_cast<void>(PropertyTree(narrow));          // refused
    static_cast<void>(PropertyTree(wide));            // refused
    static_cast<void>(PropertyTree(eight));           // refused
    static_cast<void>(PropertyTree(sixteen));         // refused
    static_cast<void>(PropertyTree(thirtyTwo));       // refused
    static_cast<void>(PropertyTreeScalar(narrow));    // refused
    static_cast<void>(PropertyTreeScalar(wide));      // refused
    static_cast<void>(PropertyTreeScalar(eight));     // refused
    static_cast<void>(PropertyTreeScalar(sixteen));   // refused
    static_cast<void>(PropertyTreeScalar(thirtyTwo)); // refused
    scalar = narrow;                                  // refused
    scalar = wide;                                    // refused
    scalar = eight;                                   // refused
    scalar = sixteen;                                 // refused
    scalar = thirtyTwo;                               // refused
    tree.append('a');                                 // refused
    static_cast<void>(tree == 'a');                   // refused
}

#else

void Values(PropertyTree& tree, PropertyTreeScalar& scalar, signed char small, unsigned char byte, std::vector<bool>& flags,
            const std::vector<bool>& constantFlags)
{
    tree["x"] = "text";
    tree = {};
    tree = 0;
    tree = small;
    tree = byte;
    tree = flags[0];
    tree = constantFlags[0];
    tree = std::true_type();
    tree = std::is_same<int, int>();
    tree = std::string_view("text");
    scalar = 0;
    scalar = small;
    scalar = byte;
    scalar = flags[0];
    scalar = constantFlags[0];
    scalar = std::false_type();
    scalar = std::string_view("text");
    PropertyTree copied = "text";
    static_cast<void>(PropertyTree(0) == 0 && tree != 0 && scalar == 0 && PropertyTree({}) == copied);
    tree.append("a");
    tree.getMap().try_emplace("x", 0);
    tree.getMap().insert_or_assign("x", 0);
}

template <class Key> void Keys(PropertyTree& tree, const PropertyTree& constant, const Key& key)
{
    tree[key] = constant[key];
    static_cast<void>(tree.contains(key));
    PropertyTree::Map& map = tree.getMap();
    const PropertyTree::Map& constantMap = map;
    map[key] = constantMap.at(key);
    map.at(key) = constantMap.find(key)->second;
    map.try_emplace(key, map.find(key)->second);
    map.insert_or_assign(key, map.lower_bound(key)->second);
    map.emplace(key, constantMap.lower_bound(key)->second);
    static_cast<void>(map.upper_bound(key) == constantMap.upper_bound(key));
    static_cast<void>(map.equal_range(key).first == constantMap.equal_range(key).first);
    static_cast<void>(map.contains(key) && map.count(key) == map.erase(key));
}

template void Keys(PropertyTree&, const PropertyTree&, const char (&)[4]);
template void Keys(PropertyTree&, const PropertyTree&, const char* const&);
template void Keys(PropertyTree&, const PropertyTree&, const std::string&);
template void Keys(PropertyTree&, const PropertyTree&, const std::string_view&);

#endif
