#ifndef OMBREL_PROC_REFLECTION_CONTEXT_H
#define OMBREL_PROC_REFLECTION_CONTEXT_H

#include "PropertyTree/PropertyTree.h"

#include <cstddef>

namespace Ombrel::Proc
{

struct ReadFlags
{
    bool resetMissing; // whether a missing key resets its field to the default; if not, the field keeps its value
};

struct WriteFlags
{
    bool resetTargets; // whether a nested record is written into an empty map; if not, into the map that is there
    bool omitDefaults; // whether fields that equal their default are left out
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
    std::size_t others = 0; // how many entries the caller adds itself; the map gets room for them
};

} // namespace Ombrel::Proc

#endif
