#include "release/Samples.h"

#include "Proc/EffectSettings/EffectSettings.h"
#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "Proc/EffectSettings/HelperSettings.h"
#include "Proc/Reflection/Schema.h"
#include "Proc/Settings/Settings.h"

#include <algorithm>
#include <cstdint>
#include <exception>
#include <limits>
#include <memory>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace Release
{
namespace
{

using namespace Ombrel;

constexpr std::size_t DEEPEST = 12; // records and lists in each other; no class has as many

PropertyTree List(std::vector<PropertyTree> elements)
{
    PropertyTree list;
    list.makeList().assign(elements.begin(), elements.end());
    return list;
}

PropertyTree Colour(int key, const char* value)
{
    PropertyTree colour;
    colour["key"] = key;
    colour["value"] = value;
    return colour;
}

PropertyTree Acid(int radius)
{
    PropertyTree effect;
    effect["name"] = "EFFECT_ACID";
    if (radius != 0)
    {
        effect["radius"] = radius;
    }
    return effect;
}

PropertyTree Tile(std::vector<PropertyTree> effects)
{
    PropertyTree effect;
    effect["name"] = "effectSettingsTileStub";
    effect["pre"] = List(std::move(effects));
    return effect;
}

class Sampler
{
public:
    Sampler(const PropertyTree& manifest, const PropertyTree& described)
        : m_manifest(manifest), m_described(described), m_id(TextIn(described, "id"))
    {
    }

    std::vector<Sample> Run()
    {
        const PropertyTree::List& fields = m_described["keys"].getList();
        m_samples.push_back({"default", Whole({})});
        PropertyTree all;
        all.makeMap();
        for (const PropertyTree& field : fields)
        {
            all[TextIn(field, "key")] = Changed(field, field["default"], 0);
        }
        m_samples.push_back({"every value changed", Whole(all)});
        AddKeys(fields, {}, {});
        AddEdges(fields);
        return std::move(m_samples);
    }

private:
    struct Step
    {
        std::string key;
        bool isInList = false; // the value of the key is a list, and the next step is in its one element
    };
    using Way = std::vector<Step>;

    PropertyTree Whole(PropertyTree map) const
    {
        map["name"] = m_id;
        return map;
    }

    PropertyTree At(const Way& way, PropertyTree value) const
    {
        for (auto step = way.rbegin(); step != way.rend(); ++step)
        {
            PropertyTree map;
            map[step->key] = step->isInList ? List({std::move(value)}) : std::move(value);
            value = std::move(map);
        }
        return Whole(std::move(value));
    }

    const PropertyTree::List& RecordOf(const PropertyTree& value) const
    {
        return m_manifest["records"][TextIn(value, "record")].getList();
    }

    // Each key alone, in nested records too, with each name that it may have.
    void AddKeys(const PropertyTree::List& fields, const Way& way, const std::string& path)
    {
        for (const PropertyTree& field : fields)
        {
            const std::string key = TextIn(field, "key");
            Way here = way;
            here.push_back({key});
            const std::string name = path + key;
            m_samples.push_back({name, At(here, Changed(field, field["default"], 0))});
            AddNames(field, here, name);
            AddNested(field, here, name);
        }
    }

    void AddNested(const PropertyTree& value, Way way, const std::string& name)
    {
        const std::string kind = TextIn(value, "kind");
        if (way.size() > DEEPEST)
        {
            return;
        }
        if (kind == "record")
        {
            AddKeys(RecordOf(value), way, name + "/");
        }
        else if (kind == "list" && TextIn(value["element"], "kind") == "record")
        {
            way.back().isInList = true;
            AddKeys(RecordOf(value["element"]), way, name + "/0/");
        }
    }

    void AddNames(const PropertyTree& value, Way way, const std::string& name)
    {
        if (value.contains("element"))
        {
            if (TextIn(value["element"], "kind") == "name")
            {
                way.back().isInList = true;
                AddNames(value["element"], way, name + "/0");
            }
            return;
        }
        if (TextIn(value, "kind") != "name")
        {
            return;
        }
        for (const PropertyTree& row : value["names"].getList())
        {
            m_samples.push_back({name + " = " + TextIn(row, "name"), At(way, row["name"])});
        }
        m_samples.push_back({name + " = a name that is unknown", At(way, "no such name")});
        if (value.contains("takesNumbers"))
        {
            m_samples.push_back({name + " = 1", At(way, 1)});
            m_samples.push_back({name + " = 99", At(way, 99)});
        }
    }

    void AddEdges(const PropertyTree::List& fields)
    {
        for (std::size_t number = 0;; ++number)
        {
            PropertyTree all;
            all.makeMap();
            for (const PropertyTree& field : fields)
            {
                const std::vector<PropertyTree> edges = EdgesOf(field, 0);
                if (number < edges.size())
                {
                    all[TextIn(field, "key")] = edges[number];
                }
            }
            if (all.getMap().empty())
            {
                return;
            }
            m_samples.push_back({"edges " + std::to_string(number + 1), Whole(std::move(all))});
        }
    }

    // Another value than the default, as plain as may be.
    PropertyTree Changed(const PropertyTree& value, const PropertyTree& byDefault, std::size_t depth) const
    {
        const std::string kind = TextIn(value, "kind");
        if (kind.starts_with("int") || kind.starts_with("uint"))
        {
            return byDefault.isScalar() && byDefault == PropertyTree(3) ? 4 : 3;
        }
        if (kind.starts_with("float"))
        {
            return byDefault == PropertyTree(0.25) ? 0.75 : 0.25;
        }
        if (kind == "bool")
        {
            return byDefault == PropertyTree(true) ? PropertyTree(false) : PropertyTree(true);
        }
        if (kind == "text")
        {
            return "changed";
        }
        if (kind == "name")
        {
            const PropertyTree::List& names = value["names"].getList();
            const auto other =
                std::ranges::find_if(names, [&](const PropertyTree& row) { return !(row["name"] == byDefault); });
            return other == names.end() ? byDefault : (*other)["name"];
        }
        if (kind == "colour")
        {
            return "11223344";
        }
        if (kind == "colour map")
        {
            return List({Colour(7, "11223344"), Colour(200, "55667788")});
        }
        if (kind == "record" && depth < DEEPEST)
        {
            PropertyTree map;
            map.makeMap();
            for (const PropertyTree& field : RecordOf(value))
            {
                map[TextIn(field, "key")] = Changed(field, field["default"], depth + 1);
            }
            return map;
        }
        if ((kind == "list" || kind == "set") && depth < DEEPEST)
        {
            return List({Changed(value["element"], PropertyTree(), depth + 1)});
        }
        return kind == "effect" ? Acid(5) : byDefault;
    }

    std::vector<PropertyTree> EdgesOf(const PropertyTree& value, std::size_t depth) const
    {
        const std::string kind = TextIn(value, "kind");
        if (kind == "int32")
        {
            return {std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max(), 0};
        }
        if (kind == "uint32")
        {
            return {0, std::numeric_limits<std::uint32_t>::max()};
        }
        if (kind == "uint8")
        {
            return {0, 255};
        }
        if (kind == "int64" || kind == "uint64")
        {
            return {std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max(), -1};
        }
        if (kind == "float64")
        {
            return {-std::numeric_limits<double>::max(), std::numeric_limits<double>::max(), 0.1, -0.0, 5};
        }
        if (kind == "float32")
        {
            return {-static_cast<double>(std::numeric_limits<float>::max()),
                    static_cast<double>(std::numeric_limits<float>::max()), 0.1, -0.0, 5};
        }
        if (kind == "bool")
        {
            return {false, true};
        }
        if (kind == "text")
        {
            return {"", "\xC3\xA4\"\\\n\xE2\x82\xAC", "true"};
        }
        if (kind == "colour")
        {
            return {"00000000", "ffffffff", "ABCDEF01"};
        }
        if (kind == "colour map")
        {
            return {List({}), List({Colour(255, "ffffffff"), Colour(0, "00000000")}), List({Colour(0, "12345678")})};
        }
        if (kind == "effect")
        {
            return {PropertyTree(), Tile({Acid(1), PropertyTree(), Tile({Acid(2)})}), Acid(0)};
        }
        if (kind == "record" && depth < DEEPEST)
        {
            return RecordEdgesOf(value, depth);
        }
        if ((kind == "list" || kind == "set") && depth < DEEPEST)
        {
            const std::vector<PropertyTree> elements = EdgesOf(value["element"], depth + 1);
            PropertyTree changed = Changed(value["element"], PropertyTree(), depth + 1);
            return {List({}), List(elements), List({changed, changed})};
        }
        return {};
    }

    std::vector<PropertyTree> RecordEdgesOf(const PropertyTree& value, std::size_t depth) const
    {
        std::vector<PropertyTree> maps(1);
        maps.front().makeMap();
        for (const PropertyTree& field : RecordOf(value))
        {
            const std::vector<PropertyTree> edges = EdgesOf(field, depth + 1);
            for (std::size_t number = 0; number != edges.size(); ++number)
            {
                if (maps.size() == number + 1)
                {
                    maps.emplace_back().makeMap();
                }
                maps[number + 1][TextIn(field, "key")] = edges[number];
            }
        }
        return maps;
    }

    const PropertyTree& m_manifest;
    const PropertyTree& m_described;
    const std::string m_id;
    std::vector<Sample> m_samples;
};

constexpr Proc::WriteFlags WHOLE{.resetTargets = true, .omitDefaults = false};

PropertyTree WholeOf(const PhotoCore::EffectClass& effectClass, PhotoCore::IEffectSettings& effect)
{
    PropertyTree full;
    if (const Proc::RecordSchema* schema = effectClass.getSchema())
    {
        schema->write(effectClass.getStored(effect), full.makeMap(), &WHOLE, 2);
    }
    full["implName"] = effect.GetImplName();
    const PhotoCore::HelperSettings& helper = effect.GetHelperSettings();
    PhotoCore::HelperSettings::Schema().write(&helper, full["helperSettings"].makeMap(), &WHOLE, 0);
    return full;
}

} // namespace

std::string TextIn(const PropertyTree& tree, const char* key)
{
    return tree[key].getScalar().toString();
}

std::vector<Sample> SamplesOf(const PropertyTree& manifest, const PropertyTree& described)
{
    return Sampler(manifest, described).Run();
}

PropertyTree OutcomeOf(const PropertyTree& tree)
{
    PropertyTree outcome;
    const PhotoCore::EffectClass* const effectClass = PhotoCore::FindEffectClass(TextIn(tree, "name"));
    if (!effectClass)
    {
        outcome["refused"] = "the class is not known";
        return outcome;
    }
    try
    {
        std::shared_ptr<PhotoCore::IEffectSettings> effect;
        PropertyTree written;
        if (effectClass->registration == PhotoCore::Registration::None)
        {
            effect = effectClass->create();
            effect->Deserialize(tree);
        }
        else
        {
            PhotoCore::EffectSettings::DeserializePtr(tree, effect);
        }
        PhotoCore::EffectSettings::SerializePtr(written, effect);
        outcome["full"] = WholeOf(*effectClass, *effect);
        outcome["empty"] = List({effect->IsEmpty(), effect->GetEffectSettings().IsEmpty()});
        outcome["written"] = std::move(written);
    }
    catch (const std::exception& failure)
    {
        outcome = PropertyTree();
        outcome["refused"] = failure.what();
    }
    return outcome;
}

PropertyTree DefaultsOf(const PropertyTree& described)
{
    PropertyTree defaults;
    defaults.makeMap();
    for (const PropertyTree& field : described["keys"].getList())
    {
        defaults[TextIn(field, "key")] = field["default"];
    }
    return defaults;
}

PropertyTree DifferenceOf(const PropertyTree& full, const PropertyTree& byDefault)
{
    if (!full.isMap() || !byDefault.isMap())
    {
        return full;
    }
    PropertyTree difference;
    difference.makeMap();
    for (const auto& [key, value] : full.getMap())
    {
        if (!byDefault.contains(key) || !(byDefault[key] == value))
        {
            difference[key] = byDefault.contains(key) ? DifferenceOf(value, byDefault[key]) : value;
        }
    }
    return difference;
}

PropertyTree FullOf(const PropertyTree& difference, PropertyTree byDefault)
{
    if (!difference.isMap() || !byDefault.isMap())
    {
        return difference;
    }
    for (const auto& [key, value] : difference.getMap())
    {
        byDefault[key] = byDefault.contains(key) ? FullOf(value, std::move(byDefault[key])) : value;
    }
    return byDefault;
}

} // namespace Release
