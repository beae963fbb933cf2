#ifndef OMBREL_TESTS_SUPPORT_TREE_TEXT_H
#define OMBREL_TESTS_SUPPORT_TREE_TEXT_H

#include "PropertyTree/PropertyTree.h"
#include "PropertyTree/PropertyTreeOutput.h" // shows a tree in a failed expectation

#include <initializer_list>
#include <ostream>
#include <string_view>
#include <utility>

namespace Support
{

/// A map written down in a test: `Map({{"radius", 3}})`.
Ombrel::PropertyTree Map(std::initializer_list<std::pair<std::string_view, Ombrel::PropertyTree>> entries);

/// A list written down in a test: `List({"Red", "Alpha"})`.
Ombrel::PropertyTree List(std::initializer_list<Ombrel::PropertyTree> elements);

} // namespace Support

#endif
