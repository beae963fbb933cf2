#ifndef OMBREL_PROPERTY_TREE_JSON_JSON_FAULT_H
#define OMBREL_PROPERTY_TREE_JSON_JSON_FAULT_H

#include <cstddef>
#include <string>

namespace Ombrel
{

/// What is wrong with a text and where, as the parts of the reader throw it. The reader makes a `JsonError` of it: only then
/// are line, column and path worked out.
struct JsonFault
{
    std::size_t offset;
    std::string reason;
};

} // namespace Ombrel

#endif
