#ifndef OMBREL_TESTS_SUPPORT_TREE_TEXT_H
#define OMBREL_TESTS_SUPPORT_TREE_TEXT_H

#include "PropertyTree/PropertyTree.h"

#include <initializer_list>
#include <iosfwd>
#include <string_view>
#include <utility>

namespace Ombrel
{

/// Shows a tree in a failed expectation.
void PrintTo(const PropertyTree& tree, std::ostream* out);

} // namespace Ombrel

namespace Support
{

/// A map written down in a test: `Map({{"radius", 3}})`.
Ombrel::PropertyTree Map(std::initializer_list<std::pair<std::string_view, Ombrel::PropertyTree>> entries);

/// A list written down in a test: `List({"Red", "Alpha"})`.
Ombrel::PropertyTree List(std::initializer_list<Ombrel::PropertyTree> elements);

} // namespace Support

#endif
