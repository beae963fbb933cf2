#ifndef OMBREL_BENCHMARKS_PEER_EFFECTS_H
#define OMBREL_BENCHMARKS_PEER_EFFECTS_H

#include "HandWrittenClasses.h"

#include <memory>
#include <utility>

/// Effects in the documents of other libraries. Only the record and the class id are written and read, which favours the
/// others.
namespace Ombrel::Benchmarks
{

template <class List> struct EffectWriter
{
    template <class Record> struct Function
    {
        static void Call(List& list, const Proc::Settings& settings)
        {
            const auto& record = static_cast<const Record&>(settings);
            Identified map{list.AddMap(1 + CountFields(record))};
            WriteFields(map, record);
        }
    };
};

template <class List> void WritePeerEffect(List& list, const HandWrittenEffect& effect)
{
    Classes::TABLE<EffectWriter<List>::template Function>[effect.ClassIndex()](list, effect.GetEffectSettings());
}

/// @tparam Value what the format has for an element of a list
template <class Format, class Value> struct EffectReader
{
    template <class Record> struct Function
    {
        static void Call(Value value, Proc::Settings& settings)
        {
            auto cursor = Format::CursorOf(value);
            ReadFields(cursor, static_cast<Record&>(settings));
        }
    };
};

template <class Format, class Value> std::shared_ptr<HandWrittenEffect> ReadPeerEffect(Value&& value)
{
    auto effect = HandWrittenEffect::Create(Format::TextOf(Format::ChildOf(value, "name")));
    constexpr const auto& readers = Classes::TABLE<EffectReader<Format, Value&&>::template Function>;
    readers[effect->ClassIndex()](std::forward<Value>(value), effect->GetEffectSettingsRef());
    return effect;
}

template <class Document> void WritePeerEffects(Document& document, const HandWrittenEffect::List& effects)
{
    auto list = document.MakeList(effects.size());
    for (const std::shared_ptr<HandWrittenEffect>& effect : effects)
    {
        WritePeerEffect(list, *effect);
    }
}

/// @param list the top of a document
template <class Format, class Value> HandWrittenEffect::List ReadPeerEffects(const Value& list)
{
    HandWrittenEffect::List effects;
    auto&& elements = Format::ElementsOf(list);
    effects.reserve(Format::SizeOf(elements));
    for (typename Format::Element element : elements)
    {
        effects.push_back(ReadPeerEffect<Format>(element));
    }
    return effects;
}

} // namespace Ombrel::Benchmarks

#endif
