#include "HandWritten.h"

#include "HandWrittenClasses.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <limits>

namespace Ombrel::Benchmarks
{
namespace
{

template <class Record> struct Make
{
    static std::shared_ptr<HandWrittenEffect> Call() { return std::make_shared<HandWrittenSettings<Record>>(); }
};

bool IsDefault(const PhotoCore::HelperSettings& settings)
{
    constexpr std::uint32_t noLimit = std::numeric_limits<std::uint32_t>::max();
    return !settings.GetUndoSet() && settings.GetMaxWidth() == noLimit && settings.GetMaxHeight() == noLimit &&
           settings.GetApplyMode().empty();
}

using Adjuster = Proc::SettingsEffectAdjuster;

struct PlainValue
{
    std::string_view key;
    double Adjuster::*member;
};

constexpr PlainValue PLAIN_VALUES[] = {
    {"brightness", &Adjuster::m_brightness},
    {"colorizeHue", &Adjuster::m_colorizeHue},
    {"colorizeIntensity", &Adjuster::m_colorizeIntensity},
    {"colorizeLightness", &Adjuster::m_colorizeLightness},
    {"colorizeSaturation", &Adjuster::m_colorizeSaturation},
    {"contrast", &Adjuster::m_contrast},
    {"gamma", &Adjuster::m_gamma},
    {"highlights", &Adjuster::m_highlights},
    {"highlightsIntensity", &Adjuster::m_highlightsIntensity},
    {"hue", &Adjuster::m_hue},
    {"hueIntensity", &Adjuster::m_hueIntensity},
    {"shadows", &Adjuster::m_shadows},
    {"shadowsIntensity", &Adjuster::m_shadowsIntensity},
    {"temperature", &Adjuster::m_temperature},
    {"temperatureIntensity", &Adjuster::m_temperatureIntensity},
};

double* Find(Adjuster& record, std::string_view key)
{
    const auto found = std::ranges::find(PLAIN_VALUES, key, &PlainValue::key);
    return found == std::end(PLAIN_VALUES) ? nullptr : &(record.*found->member);
}

} // namespace

std::shared_ptr<HandWrittenEffect> HandWrittenEffect::Create(std::string_view id)
{
    return Classes::TABLE<Make>[Classes::IndexOf(id)]();
}

std::shared_ptr<HandWrittenEffect> HandWrittenEffect::CreateFrom(const Proc::Settings& record)
{
    std::shared_ptr<HandWrittenEffect> effect = Create(record.GetClassId());
    effect->SetEffectSettings(record);
    return effect;
}

std::shared_ptr<HandWrittenEffect> HandWrittenEffect::DeserializeWithId(const PropertyTree& tree)
{
    std::shared_ptr<HandWrittenEffect> effect = Create(tree["name"].getScalar().toString());
    effect->Read(tree, 1);
    return effect;
}

std::size_t HandWrittenEffect::CountBase() const
{
    return (IsDefault(m_helperSettings) ? 0U : 1U) + (m_implName == "default" ? 0U : 1U);
}

void HandWrittenEffect::WriteBase(PropertyTree::Map& map, std::size_t count) const
{
    if (count == 0)
    {
        return;
    }
    if (!IsDefault(m_helperSettings))
    {
        m_helperSettings.Serialize(map["helperSettings"]);
    }
    if (m_implName != "default")
    {
        map["implName"] = m_implName;
    }
}

void HandWrittenEffect::ReadBase(const PropertyTree::Map& map)
{
    if (const auto found = map.find("implName"); found != map.end())
    {
        m_implName = found->second.getScalar().toString();
    }
    if (const auto found = map.find("helperSettings"); found != map.end())
    {
        m_helperSettings.Deserialize(found->second);
    }
}

PropertyTree HandWriteEffects(const HandWrittenEffect::List& effects)
{
    PropertyTree tree;
    PropertyTree::List& list = tree.makeList(effects.size());
    for (const std::shared_ptr<HandWrittenEffect>& effect : effects)
    {
        effect->SerializeWithId(list.emplace_back());
    }
    return tree;
}

HandWrittenEffect::List HandReadEffects(const PropertyTree& tree)
{
    HandWrittenEffect::List effects;
    effects.reserve(tree.getList().size());
    for (const PropertyTree& element : tree.getList())
    {
        effects.push_back(HandWrittenEffect::DeserializeWithId(element));
    }
    return effects;
}

PropertyTree HandWrittenAdjusterAccess::GetProperty(const std::string& key) const
{
    const double* value = Find(*m_record, key);
    return value ? PropertyTree(*value) : PropertyTree();
}

void HandWrittenAdjusterAccess::SetProperty(const std::string& key, const PropertyTree& value)
{
    if (double* target = Find(*m_record, key))
    {
        *target = value.getScalar().toDouble();
    }
}

std::vector<std::string> HandWrittenAdjusterAccess::ListProperties() const
{
    std::vector<std::string> keys;
    for (const PlainValue& value : PLAIN_VALUES)
    {
        keys.emplace_back(value.key);
    }
    return keys;
}

} // namespace Ombrel::Benchmarks
