#include "SampleLists.h"

#include "EffectLists.h"
#include "PropertyTreeJson/PropertyTreeJson.h"
#include "Samples.h"

namespace Ombrel::Benchmarks
{

SampleList::SampleList(const std::vector<std::unique_ptr<Proc::Settings>>& records)
{
    for (const std::unique_ptr<Proc::Settings>& record : records)
    {
        effects.push_back(PhotoCore::IEffectSettings::CreateEffectSettings(record->GetClassId()));
        effects.back()->SetEffectSettings(*record);
        handWritten.push_back(HandWrittenEffect::CreateFrom(*record));
    }
    tree = WriteEffects(effects);
    text = WriteJson(tree);
}

const SampleList& MixedEffects()
{
    static const SampleList list(FullRecords(1000, Faces::Without));
    return list;
}

const SampleList& EffectsWithFaces()
{
    static const SampleList list(FullRecords(1000, Faces::With));
    return list;
}

const SampleList& ManyEffects()
{
    static const SampleList list(FullRecords(100000, Faces::Without));
    return list;
}

} // namespace Ombrel::Benchmarks
