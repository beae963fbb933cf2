#include "Comparison.h"

#include "HandWritten.h"
#include "HandWrittenRecords.h"
#include "Proc/EffectSettings/AdjusterSettings.h"
#include "Samples.h"

#include <memory>
#include <string>

namespace Ombrel::Benchmarks
{
namespace
{

using PhotoCore::IEffectSettings;
using Proc::SettingsEffectAdjuster;

// Behind its interface, as a caller holds it: the compiler must not see through the virtual calls.
std::shared_ptr<IEffectSettings> MakeEffect(const SettingsEffectAdjuster& record)
{
    return PhotoCore::AdjusterSettings::Create(record);
}

nlohmann::json DomOf(const HandWrittenEffect& effect)
{
    nlohmann::json dom;
    HandWrittenEffect::WriteDomWithId(dom, effect);
    return dom;
}

void AddWrite(const std::string& title, const SettingsEffectAdjuster& record)
{
    const auto handWritten = HandWrittenEffect::CreateFrom(record);
    AddComparison(
        title,
        [effect = MakeEffect(record)]
        {
            PropertyTree tree;
            effect->Serialize(tree);
            return tree;
        },
        [handWritten]
        {
            PropertyTree tree;
            handWritten->Serialize(tree);
            return tree;
        },
        [handWritten]
        {
            nlohmann::json dom;
            handWritten->WriteDom(dom);
            return dom;
        });
}

// Every variant reads into an effect with other values than those in the tree.
void AddRead(const std::string& title, const SettingsEffectAdjuster& record)
{
    const SettingsEffectAdjuster before = FullAdjuster(1);
    PropertyTree tree;
    MakeEffect(record)->Serialize(tree);
    nlohmann::json dom;
    HandWrittenEffect::CreateFrom(record)->WriteDom(dom);
    AddComparison(
        title,
        [effect = MakeEffect(before), tree]() -> const IEffectSettings&
        {
            effect->Deserialize(tree);
            return *effect;
        },
        [effect = HandWrittenEffect::CreateFrom(before), tree]() -> const IEffectSettings&
        {
            effect->Deserialize(tree);
            return *effect;
        },
        [effect = HandWrittenEffect::CreateFrom(before), dom]() -> const IEffectSettings&
        {
            effect->ReadDom(dom);
            return *effect;
        });
}

// RapidJSON takes part with the record alone, without a base class or an interface around it.
void AddRapid(const std::string& writeTitle, const std::string& readTitle, const SettingsEffectAdjuster& record)
{
    const auto write = [record]
    {
        rapidjson::Document document(rapidjson::kObjectType);
        WriteFields(RapidMap{&document, &document.GetAllocator()}, record);
        return document;
    };
    const std::string writeName = writeTitle + '/' + RAPIDJSON;
    const nlohmann::json expected = Canonical(write());
    PropertyTree tree;
    MakeEffect(record)->Serialize(tree);
    RequireSame(writeName, expected, Canonical(tree));
    AddVariant(writeName, write);

    const auto target = std::make_shared<SettingsEffectAdjuster>(FullAdjuster(1));
    const auto read = [target, document = std::make_shared<rapidjson::Document>(write())]() -> const SettingsEffectAdjuster&
    {
        ReadFields(static_cast<const rapidjson::Value&>(*document), *target);
        return *target;
    };
    const std::string readName = readTitle + '/' + RAPIDJSON;
    RequireSame(readName, Canonical(MakeEffect(read())), Canonical(MakeEffect(record)));
    AddVariant(readName, read);
}

void AddPropertyAccess()
{
    // The access is asked for once: what is measured is the way to one property through it.
    const std::shared_ptr<IEffectSettings> effect = MakeEffect(FullAdjuster());
    const std::shared_ptr<IEffectSettings::IPropertyAccess> library = effect->GetPropertyAccess();
    const auto handWrittenEffect = HandWrittenEffect::CreateFrom(FullAdjuster());
    const std::shared_ptr<IEffectSettings::IPropertyAccess> handWritten = std::make_shared<HandWrittenAdjusterAccess>(
        dynamic_cast<SettingsEffectAdjuster&>(handWrittenEffect->GetEffectSettingsRef()));
    const nlohmann::json dom = DomOf(*handWrittenEffect);

    AddComparison(
        "get property", [effect, library] { return library->GetProperty("highlights"); },
        [handWrittenEffect, handWritten] { return handWritten->GetProperty("highlights"); },
        [dom]() -> nlohmann::json { return dom.at("highlights"); });

    AddComparison(
        "set property",
        [effect, library, value = PropertyTree(17.5)]() -> const IEffectSettings&
        {
            library->SetProperty("highlights", value);
            return *effect;
        },
        [handWrittenEffect, handWritten, value = PropertyTree(17.5)]() -> const IEffectSettings&
        {
            handWritten->SetProperty("highlights", value);
            return *handWrittenEffect;
        },
        [target = dom, value = nlohmann::json(17.5)]() mutable -> const nlohmann::json&
        {
            target["highlights"] = value;
            return target;
        });
}

void AddWholeEffect()
{
    const std::shared_ptr<IEffectSettings> effect = MakeEffect(FullAdjuster());
    const std::shared_ptr<IEffectSettings> handWritten = HandWrittenEffect::CreateFrom(FullAdjuster());
    const nlohmann::json dom = DomOf(*HandWrittenEffect::CreateFrom(FullAdjuster()));
    const std::string id = SettingsEffectAdjuster::CLASS_ID;

    AddComparison(
        "clone", [effect] { return effect->Clone(); }, [handWritten] { return handWritten->Clone(); },
        [dom] { return nlohmann::json(dom); });

    AddComparison(
        "compare, equal", [effect, other = effect->Clone()] { return *effect == *other; },
        [handWritten, other = handWritten->Clone()] { return *handWritten == *other; },
        [dom, other = dom] { return dom == other; });

    // As a DOM an effect without a changed value is its class id alone.
    AddComparison(
        "create by id", [id] { return IEffectSettings::CreateEffectSettings(id); },
        [id] { return HandWrittenEffect::Create(id); },
        [id] {
            return nlohmann::json{{"name", id}};
        });
    AddVariant(std::string("make_shared of the class/") + LIBRARY,
               []() -> std::shared_ptr<IEffectSettings> { return std::make_shared<PhotoCore::AdjusterSettings>(); });
}

} // namespace

void AddEffectComparisons()
{
    AddWrite("write, 20 of 20 changed", FullAdjuster());
    AddWrite("write, 2 of 20 changed", SparseAdjuster());
    AddWrite("write, none changed", SettingsEffectAdjuster());
    AddRead("read, 20 of 20 changed", FullAdjuster());
    AddRead("read, 2 of 20 changed", SparseAdjuster());
    AddRead("read, none changed", SettingsEffectAdjuster());
    AddRapid("write, 20 of 20 changed", "read, 20 of 20 changed", FullAdjuster());
    AddPropertyAccess();
    AddWholeEffect();
}

} // namespace Ombrel::Benchmarks
