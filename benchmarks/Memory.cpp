#include "Memory.h"

#include "Allocations.h"
#include "EffectLists.h"
#include "PeerEffects.h"
#include "Peers.h"
#include "PropertyTreeJson/PropertyTreeJson.h"
#include "SampleLists.h"
#include "SimdFormat.h"

#include <memory>
#include <string>

namespace Ombrel::Benchmarks
{
namespace
{

// The document itself is counted as well, so it is made on the heap.
template <class Document, class Fill>
void Add(Figures& figures, const std::string& title, const char* variant, const Fill& fill)
{
    const std::string name = title + '/' + variant;
    if (IsWanted(name))
    {
        const SampleList& list = MixedEffects();
        { // what is made only once is not counted
            Document document;
            fill(document, list);
        }
        std::unique_ptr<Document> document;
        const std::size_t bytes = BytesTakenBy(
            [&]
            {
                document = std::make_unique<Document>();
                fill(*document, list);
            });
        figures[name] = static_cast<double>(bytes) / static_cast<double>(list.effects.size());
    }
}

} // namespace

Figures MeasureMemory()
{
    Figures figures;
    const std::string written = "bytes per effect, written";
    const std::string read = "bytes per effect, read from text";
    Add<PropertyTree>(figures, written, LIBRARY,
                      [](PropertyTree& tree, const SampleList& list) { tree = WriteEffects(list.effects); });
    Add<PropertyTree>(figures, read, LIBRARY, [](PropertyTree& tree, const SampleList& list) { tree = ReadJson(list.text); });
    ForEachPeer(
        [&]<class Format>(const char* variant)
        {
            using Document = typename Format::Document;
            Add<Document>(figures, written, variant,
                          [](Document& document, const SampleList& list) { WritePeerEffects(document, list.handWritten); });
            Add<Document>(figures, read, variant,
                          [](Document& document, const SampleList& list) { document.Parse(list.text); });
        });
    Add<SimdFormat::Document>(figures, read, SIMDJSON,
                              [](SimdFormat::Document& document, const SampleList& list)
                              { document.Parse(simdjson::padded_string(list.text)); });
    return figures;
}

} // namespace Ombrel::Benchmarks
