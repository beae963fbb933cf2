#include "Comparison.h"

#include "EffectLists.h"
#include "HandWritten.h"
#include "HandWrittenJson.h"
#include "OnDemand.h"
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

using MakeList = const SampleList& (*)();

// With the room behind it that simdjson reads.
std::shared_ptr<const simdjson::padded_string> SharedText(const SampleList& list)
{
    return std::make_shared<simdjson::padded_string>(list.text);
}

// A DOM that is written once, for all calls of an operation.
template <class Format> auto SharedDocument(const SampleList& list)
{
    using Document = typename Format::Document;
    const auto document = std::make_shared<Document>();
    WritePeerEffects(*document, list.handWritten);
    return document;
}

void AddTreeToText(const std::string& title, MakeList list)
{
    Row row(title);
    row.Add(LIBRARY, [=] { return [&tree = list().tree] { return WriteJson(tree); }; });
    row.Add(HAND_WRITTEN, [=] { return [&tree = list().tree] { return HandWriteJson(tree); }; });
    ForEachPeer(
        [&]<class Format>(const char* variant)
        { row.Add(variant, [=] { return [document = SharedDocument<Format>(list())] { return document->Text(); }; }); });
}

void AddTextToTree(const std::string& title, MakeList list)
{
    Row row(title);
    row.Add(LIBRARY, [=] { return [&text = list().text] { return ReadJson(text); }; });
    row.Add(HAND_WRITTEN, [=] { return [&text = list().text] { return HandReadJson(text); }; });
    const auto add = [&]<class Format>(const char* variant)
    {
        using Document = typename Format::Document;
        row.Add(variant,
                [=] {
                    return [text = SharedText(list())]
                    { return Filled<Document>([&](Document& document) { document.Parse(*text); }); };
                });
    };
    ForEachPeer(add);
    add.operator()<SimdFormat>(SIMDJSON);
}

void AddEffectsToText(const std::string& title, MakeList list)
{
    Row row(title);
    row.Add(LIBRARY, [=] { return [&effects = list().effects] { return WriteJson(WriteEffects(effects)); }; });
    row.Add(HAND_WRITTEN, [=] { return [&effects = list().handWritten] { return HandWriteJson(HandWriteEffects(effects)); }; });
    ForEachPeer(
        [&]<class Format>(const char* variant)
        {
            row.Add(variant,
                    [=]
                    {
                        return [&effects = list().handWritten]
                        {
                            typename Format::Document document;
                            WritePeerEffects(document, effects);
                            return document.Text();
                        };
                    });
        });
}

void AddTextToEffects(const std::string& title, MakeList list)
{
    Row row(title);
    row.Add(LIBRARY, [=] { return [&text = list().text] { return ReadEffects(ReadJson(text)); }; });
    row.Add(HAND_WRITTEN, [=] { return [&text = list().text] { return HandReadEffects(HandReadJson(text)); }; });
    ForEachPeer(
        [&]<class Format>(const char* variant)
        {
            row.Add(variant,
                    [=]
                    {
                        return [&text = list().text]
                        {
                            typename Format::Document document;
                            document.Parse(text);
                            return ReadPeerEffects<Format>(document.Top());
                        };
                    });
        });
    row.Add(SIMDJSON,
            [=]
            {
                return [text = SharedText(list()), document = std::make_shared<SimdFormat::Document>()]
                {
                    document->Parse(*text);
                    return ReadPeerEffects<SimdFormat>(document->Top());
                };
            });
    if (OnDemandReader::CanRun())
    {
        row.Add(ON_DEMAND,
                [=] {
                    return [text = SharedText(list()), reader = std::make_shared<OnDemandReader>()]
                    { return reader->Read(*text); };
                });
    }
}

} // namespace

void AddTextComparisons()
{
    AddTextToEffects("text to 1,000 effects", MixedEffects);
    AddEffectsToText("1,000 effects to text", MixedEffects);
    AddTextToTree("text to tree of 1,000 effects", MixedEffects);
    AddTreeToText("tree of 1,000 effects to text", MixedEffects);
    AddTextToEffects("text to 1,000 with faces", EffectsWithFaces);
    AddTextToEffects("text to 100,000 effects", ManyEffects);
}

} // namespace Ombrel::Benchmarks
