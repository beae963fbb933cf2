#ifndef OMBREL_PROC_REFLECTION_CONTEXT_H
#define OMBREL_PROC_REFLECTION_CONTEXT_H

#include "PropertyTree/PropertyTree.h"

#include <cstddef>

namespace Ombrel::Proc
{

struct ReadFlags
{
    bool resetMissing; // a key that is missing resets its field to the default; clear: it leaves the field alone
};

struct WriteFlags
{
    bool resetTargets; // a nested record starts from an empty map; clear: it adds to what the target holds
    bool omitDefaults; // a field that equals its default is left out
};

/// The state of one read. Nested reads make a context of their own and pass the same flags on.
template <class Record> struct ReadContext
{
    Record& record;
    const PropertyTree::Map& source;
    const ReadFlags* flags;
};

/// The state of one write. Nested writes make a context of their own and pass the same flags on.
template <class Record> struct WriteContext
{
    const Record& record;
    PropertyTree::Map& target;
    const WriteFlags* flags;
    std::size_t others = 0; // entries that the caller will add to the map itself, so that it has room for them
};

} // namespace Ombrel::Proc

#endif
