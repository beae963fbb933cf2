#include "Comparison.h"

#include "HandWritten.h"
#include "HandWrittenRecords.h"
#include "Peers.h"
#include "Proc/EffectSettings/AdjusterSettings.h"
#include "Samples.h"

#include <memory>
#include <string>
#include <string_view>

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

PropertyTree TreeOf(const SettingsEffectAdjuster& record)
{
    PropertyTree tree;
    MakeEffect(record)->Serialize(tree);
    return tree;
}

template <class Format> auto WrittenBy(const SettingsEffectAdjuster& record)
{
    using Document = typename Format::Document;
    return Filled<Document>(
        [&](Document& document)
        {
            auto map = document.MakeMap(CountFields(record));
            WriteFields(map, record);
        });
}

template <class Format> auto SharedDocument(const SettingsEffectAdjuster& record)
{
    using Document = typename Format::Document;
    return std::shared_ptr<const Document>(new auto(WrittenBy<Format>(record)));
}

template <class Format> auto ReadingBy(const SettingsEffectAdjuster& record, const SettingsEffectAdjuster& before)
{
    return [document = SharedDocument<Format>(record),
            target = std::make_shared<SettingsEffectAdjuster>(before)]() -> const Proc::Settings&
    {
        auto cursor = Format::CursorOf(document->Top());
        ReadFields(cursor, *target);
        return *target;
    };
}

template <class Format> auto CopyingBy(const SettingsEffectAdjuster& record)
{
    using Document = typename Format::Document;
    return [source = SharedDocument<Format>(record)]
    { return Filled<Document>([&](Document& document) { document.Copy(*source); }); };
}

void AddWrite(const std::string& title, const SettingsEffectAdjuster& record)
{
    const auto write = [](const std::shared_ptr<IEffectSettings>& effect)
    {
        return [effect]
        {
            PropertyTree tree;
            effect->Serialize(tree);
            return tree;
        };
    };
    Row row(title);
    row.Add(LIBRARY, [&] { return write(MakeEffect(record)); });
    row.Add(HAND_WRITTEN, [&] { return write(HandWrittenEffect::CreateFrom(record)); });
    ForEachPeer([&]<class Format>(const char* variant)
                { row.Add(variant, [&] { return [record] { return WrittenBy<Format>(record); }; }); });
}

// Every variant reads into an effect with other values than those in the tree.
void AddRead(const std::string& title, const SettingsEffectAdjuster& record)
{
    const SettingsEffectAdjuster before = FullAdjuster(1);
    const auto read = [&](const std::shared_ptr<IEffectSettings>& effect)
    {
        return [effect, tree = TreeOf(record)]() -> const IEffectSettings&
        {
            effect->Deserialize(tree);
            return *effect;
        };
    };
    Row row(title);
    row.Add(LIBRARY, [&] { return read(MakeEffect(before)); });
    row.Add(HAND_WRITTEN, [&] { return read(HandWrittenEffect::CreateFrom(before)); });
    ForEachPeer(
        [&]<class Format>(const char* variant)
        {
            if (std::string_view(variant) != BOOST_MONOTONIC) // it reads as from the heap
            {
                row.Add(variant, [&] { return ReadingBy<Format>(record, before); });
            }
        });
}

void AddCopy(const std::string& title, const SettingsEffectAdjuster& record)
{
    Row row(title);
    row.Add(LIBRARY, [&] { return [tree = TreeOf(record)] { return PropertyTree(tree); }; });
    ForEachPeer([&]<class Format>(const char* variant) { row.Add(variant, [&] { return CopyingBy<Format>(record); }); });
}

nlohmann::json DomOf(const SettingsEffectAdjuster& record)
{
    nlohmann::json dom = WrittenBy<NlohmannFormat>(record).json;
    dom["name"] = SettingsEffectAdjuster::CLASS_NAME;
    return dom;
}

void AddPropertyAccess()
{
    const std::shared_ptr<IEffectSettings> effect = MakeEffect(FullAdjuster());
    const auto handWritten = HandWrittenEffect::CreateFrom(FullAdjuster());
    // The access is asked for once: what is measured is the way to one property through it.
    using Access = std::shared_ptr<IEffectSettings::IPropertyAccess>;
    const Access access = effect->GetPropertyAccess();
    const Access handWrittenAccess =
        std::make_shared<HandWrittenAdjusterAccess>(dynamic_cast<SettingsEffectAdjuster&>(handWritten->GetEffectSettingsRef()));

    const auto get = [](const std::shared_ptr<IEffectSettings>& owner, const Access& its)
    { return [owner, its] { return its->GetProperty("highlights"); }; };
    Row("get property")
        .Add(LIBRARY, [&] { return get(effect, access); })
        .Add(HAND_WRITTEN, [&] { return get(handWritten, handWrittenAccess); })
        .Add(NLOHMANN, [] { return [dom = DomOf(FullAdjuster())]() -> nlohmann::json { return dom.at("highlights"); }; });

    const auto set = [](const std::shared_ptr<IEffectSettings>& owner, const Access& its)
    {
        return [owner, its, value = PropertyTree(17.5)]() -> const IEffectSettings&
        {
            its->SetProperty("highlights", value);
            return *owner;
        };
    };
    Row("set property")
        .Add(LIBRARY, [&] { return set(effect, access); })
        .Add(HAND_WRITTEN, [&] { return set(handWritten, handWrittenAccess); })
        .Add(NLOHMANN,
             []
             {
                 return [target = DomOf(FullAdjuster()), value = nlohmann::json(17.5)]() mutable -> const nlohmann::json&
                 {
                     target["highlights"] = value;
                     return target;
                 };
             });
}

void AddWholeEffect()
{
    const std::shared_ptr<IEffectSettings> effect = MakeEffect(FullAdjuster());
    const std::shared_ptr<IEffectSettings> handWritten = HandWrittenEffect::CreateFrom(FullAdjuster());
    const nlohmann::json dom = DomOf(FullAdjuster());
    const std::string id = SettingsEffectAdjuster::CLASS_ID;

    const auto clone = [](const std::shared_ptr<IEffectSettings>& its) { return [its] { return its->Clone(); }; };
    Row("clone")
        .Add(LIBRARY, [&] { return clone(effect); })
        .Add(HAND_WRITTEN, [&] { return clone(handWritten); })
        .Add(NLOHMANN, [&] { return [dom] { return nlohmann::json(dom); }; });

    const auto compare = [](const std::shared_ptr<IEffectSettings>& its)
    { return [its, other = its->Clone()] { return *its == *other; }; };
    Row("compare, equal")
        .Add(LIBRARY, [&] { return compare(effect); })
        .Add(HAND_WRITTEN, [&] { return compare(handWritten); })
        .Add(NLOHMANN, [&] { return [dom, other = dom] { return dom == other; }; });

    // As a DOM an effect without a changed value is its class id alone.
    Row("create by id")
        .Add(LIBRARY, [&] { return [id] { return IEffectSettings::CreateEffectSettings(id); }; })
        .Add(HAND_WRITTEN, [&] { return [id] { return HandWrittenEffect::Create(id); }; })
        .Add(NLOHMANN, [&] { return [id] {
                                 return nlohmann::json{{"name", id}};
                             }; });
    Row("make_shared of the class")
        .Add(LIBRARY,
             []
             {
                 return []() -> std::shared_ptr<IEffectSettings> { return std::make_shared<PhotoCore::AdjusterSettings>(); };
             });
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
    AddCopy("copy tree, 20 of 20 changed", FullAdjuster());
    AddPropertyAccess();
    AddWholeEffect();
}

} // namespace Ombrel::Benchmarks
