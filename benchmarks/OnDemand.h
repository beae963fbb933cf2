#ifndef OMBREL_BENCHMARKS_ON_DEMAND_H
#define OMBREL_BENCHMARKS_ON_DEMAND_H

#include "HandWritten.h"

#include <simdjson.h>

#include <memory>

namespace Ombrel::Benchmarks
{

/// Reads effects with simdjson's On-Demand interface, which parses a value when it is asked for.
class OnDemandReader
{
public:
    /// Whether this processor can run it: unlike simdjson's DOM it is compiled for one kind of processors.
    static bool CanRun();

    OnDemandReader();
    ~OnDemandReader();

    HandWrittenEffect::List Read(const simdjson::padded_string& text);

private:
    struct Parser;

    std::unique_ptr<Parser> m_parser;
};

} // namespace Ombrel::Benchmarks

#endif
