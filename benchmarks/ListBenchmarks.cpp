#include "Comparison.h"

#include "EffectLists.h"
#include "HandWritten.h"
#include "HandWrittenJson.h"
#include "PropertyTreeJson/PropertyTreeJson.h"
#include "Samples.h"

#include <memory>
#include <string>
#include <vector>

namespace Ombrel::Benchmarks
{
namespace
{

using PhotoCore::IEffectSettings;

constexpr std::size_t EFFECT_COUNT = 1000;

PropertyTree HandWriteEffects(const HandWrittenEffect::List& effects)
{
    PropertyTree tree;
    tree.convertToList();
    PropertyTree::List& list = tree.getList();
    list.reserve(effects.size());
    for (const std::shared_ptr<HandWrittenEffect>& effect : effects)
    {
        HandWrittenEffect::WriteWithId(list.emplace_back(), *effect);
    }
    return tree;
}

HandWrittenEffect::List HandReadEffects(const PropertyTree& tree)
{
    HandWrittenEffect::List effects;
    effects.reserve(tree.getList().size());
    for (const PropertyTree& element : tree.getList())
    {
        effects.push_back(HandWrittenEffect::ReadWithId(element));
    }
    return effects;
}

nlohmann::json WriteEffectsDom(const HandWrittenEffect::List& effects)
{
    nlohmann::json dom = nlohmann::json::array();
    auto& list = dom.get_ref<nlohmann::json::array_t&>();
    list.reserve(effects.size());
    for (const std::shared_ptr<HandWrittenEffect>& effect : effects)
    {
        HandWrittenEffect::WriteDomWithId(list.emplace_back(), *effect);
    }
    return dom;
}

HandWrittenEffect::List ReadEffectsDom(const nlohmann::json& dom)
{
    HandWrittenEffect::List effects;
    effects.reserve(dom.size());
    for (const nlohmann::json& element : dom)
    {
        effects.push_back(HandWrittenEffect::ReadDomWithId(element));
    }
    return effects;
}

} // namespace

void AddListComparisons()
{
    IEffectSettings::List effects;
    HandWrittenEffect::List handWritten;
    for (const std::unique_ptr<Proc::Settings>& record : FullRecords(EFFECT_COUNT))
    {
        effects.push_back(IEffectSettings::CreateEffectSettings(record->GetClassId()));
        effects.back()->SetEffectSettings(*record);
        handWritten.push_back(HandWrittenEffect::CreateFrom(*record));
    }
    const PropertyTree tree = WriteEffects(effects);
    const nlohmann::json dom = WriteEffectsDom(handWritten);
    const std::string text = WriteJson(tree);

    AddComparison(
        "write 1,000 effects", [effects] { return WriteEffects(effects); },
        [handWritten] { return HandWriteEffects(handWritten); }, [handWritten] { return WriteEffectsDom(handWritten); });
    AddComparison(
        "read 1,000 effects", [tree] { return ReadEffects(tree); }, [tree] { return HandReadEffects(tree); },
        [dom] { return ReadEffectsDom(dom); });
    AddComparison(
        "copy tree of 1,000 effects", [tree] { return PropertyTree(tree); }, [tree] { return PropertyTree(tree); },
        [dom] { return nlohmann::json(dom); });
    AddComparison(
        "JSON text of 1,000 effects", [tree] { return WriteJson(tree); }, [tree] { return HandWriteJson(tree); },
        [dom] { return dom.dump(); });
    AddComparison(
        "JSON text to 1,000 effects", [text] { return ReadJson(text); }, [text] { return HandReadJson(text); },
        [text] { return nlohmann::json::parse(text); });
}

} // namespace Ombrel::Benchmarks
