#include "Comparison.h"

#include "EffectLists.h"
#include "HandWritten.h"
#include "PeerEffects.h"
#include "Peers.h"
#include "SampleLists.h"

#include <memory>
#include <string>

namespace Ombrel::Benchmarks
{
namespace
{

using MakeList = const SampleList& (*)();

template <class Format> auto WrittenBy(const HandWrittenEffect::List& effects)
{
    using Document = typename Format::Document;
    return Filled<Document>([&](Document& document) { WritePeerEffects(document, effects); });
}

template <class Format> auto SharedDocument(const HandWrittenEffect::List& effects)
{
    using Document = typename Format::Document;
    return std::shared_ptr<const Document>(new auto(WrittenBy<Format>(effects)));
}

void AddWrite(const std::string& title, MakeList list)
{
    Row row(title);
    row.Add(LIBRARY, [=] { return [&effects = list().effects] { return WriteEffects(effects); }; });
    row.Add(HAND_WRITTEN, [=] { return [&effects = list().handWritten] { return HandWriteEffects(effects); }; });
    ForEachPeer([&]<class Format>(const char* variant)
                { row.Add(variant, [=] { return [&effects = list().handWritten] { return WrittenBy<Format>(effects); }; }); });
}

void AddRead(const std::string& title, MakeList list)
{
    Row row(title);
    row.Add(LIBRARY, [=] { return [&tree = list().tree] { return ReadEffects(tree); }; });
    row.Add(HAND_WRITTEN, [=] { return [&tree = list().tree] { return HandReadEffects(tree); }; });
    ForEachPeer(
        [&]<class Format>(const char* variant)
        {
            row.Add(variant,
                    [=] {
                        return [document = SharedDocument<Format>(list().handWritten)]
                        { return ReadPeerEffects<Format>(document->Top()); };
                    });
        });
}

void AddCopy(const std::string& title, MakeList list)
{
    Row row(title);
    row.Add(LIBRARY, [=] { return [&tree = list().tree] { return PropertyTree(tree); }; });
    ForEachPeer(
        [&]<class Format>(const char* variant)
        {
            using Document = typename Format::Document;
            row.Add(variant,
                    [=]
                    {
                        return [source = SharedDocument<Format>(list().handWritten)]
                        { return Filled<Document>([&](Document& document) { document.Copy(*source); }); };
                    });
        });
}

void AddDestruction(const std::string& title, MakeList list)
{
    Row row(title);
    row.AddDestruction<PropertyTree>(
        LIBRARY, [=] { return [&effects = list().effects](PropertyTree& tree) { tree = WriteEffects(effects); }; });
    ForEachPeer(
        [&]<class Format>(const char* variant)
        {
            using Document = typename Format::Document;
            row.AddDestruction<Document>(
                variant,
                [=] { return [&effects = list().handWritten](Document& document) { WritePeerEffects(document, effects); }; });
        });
}

} // namespace

void AddListComparisons()
{
    AddWrite("write 1,000 effects", MixedEffects);
    AddRead("read 1,000 effects", MixedEffects);
    AddCopy("copy tree of 1,000 effects", MixedEffects);
    AddDestruction("destroy tree of 1,000 effects", MixedEffects);
    AddWrite("write 1,000 with faces", EffectsWithFaces);
    AddRead("read 1,000 with faces", EffectsWithFaces);
    AddCopy("copy tree of 1,000 with faces", EffectsWithFaces);
}

} // namespace Ombrel::Benchmarks
