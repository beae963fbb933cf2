#ifndef OMBREL_BENCHMARKS_PEERS_H
#define OMBREL_BENCHMARKS_PEERS_H

#include "BoostFormat.h"
#include "Comparison.h"
#include "NlohmannFormat.h"
#include "RapidFormat.h"

namespace Ombrel::Benchmarks
{

/// Calls `visit<Format>(variant)` for each library with a DOM that is written and read.
template <class Visit> void ForEachPeer(const Visit& visit)
{
    visit.template operator()<NlohmannFormat>(NLOHMANN);
    visit.template operator()<RapidFormat>(RAPIDJSON);
    visit.template operator()<BoostHeapFormat>(BOOST_HEAP);
    visit.template operator()<BoostMonotonicFormat>(BOOST_MONOTONIC);
}

/// A document that is made in its place: most cannot be moved, because they own the memory of their parts.
template <class Document> struct Filled : Document
{
    template <class Fill> explicit Filled(const Fill& fill) { fill(static_cast<Document&>(*this)); }
};

} // namespace Ombrel::Benchmarks

#endif
