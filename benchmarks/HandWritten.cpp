#include "HandWritten.h"

#include "HandWrittenLists.h"
#include "PropertyTreeJson/PropertyTreeJson.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <limits>
#include <stdexcept>

namespace Ombrel::Benchmarks
{
namespace
{

template <class Record> class HandWrittenSettings final : public HandWrittenEffect
{
public:
    const std::string& GetClassId() const override { return Record::CLASS_ID; }

    void Serialize(PropertyTree& tree) const override
    {
        constexpr std::size_t others = 1; // the class id
        tree.makeMap(Same(m_record, Record()) ? 0 : FIELD_COUNT<Record> + others);
        WriteBase(tree.getMap());
        WriteFields(tree.getMap(), m_record);
    }

    void Deserialize(const PropertyTree& tree) override
    {
        const PropertyTree::Map& map = tree.getMap();
        ReadBase(map);
        ReadFields(map, m_record);
    }

    void WriteDom(Dom& dom) const override
    {
        dom = Dom::object();
        WriteDomBase(dom);
        WriteFields(dom.get_ref<DomMap&>(), m_record);
    }

    void ReadDom(const Dom& dom) override
    {
        ReadDomBase(dom);
        ReadFields(MapOf(dom), m_record);
    }

    std::shared_ptr<IEffectSettings> Clone() const override { return std::make_shared<HandWrittenSettings>(*this); }
    const Proc::Settings& GetEffectSettings() const override { return m_record; }
    Proc::Settings& GetEffectSettingsRef() override { return m_record; }
    InputType GetInputType() override { return InputType::One; }

    void SetEffectSettings(const Proc::Settings& record) override { m_record = dynamic_cast<const Record&>(record); }
    void Add(const IEffectSettings&) override {}

    bool operator==(const IEffectSettings& other) const override
    {
        const auto* same = dynamic_cast<const HandWrittenSettings*>(&other);
        return same && Same(m_record, same->m_record);
    }

private:
    Record m_record;
};

struct HandWrittenClass
{
    std::string_view id;
    std::shared_ptr<HandWrittenEffect> (*create)();
};

template <class Record> constexpr HandWrittenClass ClassOf()
{
    return {Record::CLASS_NAME,
            []() -> std::shared_ptr<HandWrittenEffect> { return std::make_shared<HandWrittenSettings<Record>>(); }};
}

// So few are found fastest one by one, since most differ in length.
constexpr std::array CLASSES{
    ClassOf<Proc::SettingsEffectAcid>(),           ClassOf<Proc::SettingsEffectAdjuster>(),
    ClassOf<Proc::SettingsEffectBiColorToning>(),  ClassOf<Proc::SettingsEffectBlurRadial>(),
    ClassOf<Proc::SettingsEffectColorBalance>(),   ClassOf<Proc::SettingsEffectColorBalanceAuto>(),
    ClassOf<Proc::SettingsEffectDetailsEnhance>(), ClassOf<Proc::SettingsEffectEmpty>(),
    ClassOf<Proc::SettingsEffectFaceThinning>(),   ClassOf<Proc::SettingsEffectGradient>(),
    ClassOf<Proc::SettingsEffectNegateVideo>(),    ClassOf<Proc::SettingsEffectSmartBlur>(),
    ClassOf<Proc::SettingsEffectVibrance>(),
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
    const auto found = std::ranges::find(CLASSES, id, &HandWrittenClass::id);
    if (found == CLASSES.end())
    {
        throw std::out_of_range("no hand-written effect: " + std::string(id));
    }
    return found->create();
}

std::shared_ptr<HandWrittenEffect> HandWrittenEffect::CreateFrom(const Proc::Settings& record)
{
    std::shared_ptr<HandWrittenEffect> effect = Create(record.GetClassId());
    effect->SetEffectSettings(record);
    return effect;
}

void HandWrittenEffect::WriteWithId(PropertyTree& tree, const HandWrittenEffect& effect)
{
    effect.Serialize(tree);
    tree.getMap().try_emplace("name", PropertyTree(effect.GetClassId()));
}

std::shared_ptr<HandWrittenEffect> HandWrittenEffect::ReadWithId(const PropertyTree& tree)
{
    std::shared_ptr<HandWrittenEffect> effect = Create(tree["name"].getScalar().toString());
    effect->Deserialize(tree);
    return effect;
}

void HandWrittenEffect::WriteDomWithId(Dom& dom, const HandWrittenEffect& effect)
{
    effect.WriteDom(dom);
    dom.emplace("name", effect.GetClassId());
}

std::shared_ptr<HandWrittenEffect> HandWrittenEffect::ReadDomWithId(const Dom& dom)
{
    std::shared_ptr<HandWrittenEffect> effect = Create(dom.at("name").get_ref<const std::string&>());
    effect->ReadDom(dom);
    return effect;
}

void HandWrittenEffect::WriteBase(PropertyTree::Map& map) const
{
    if (!IsDefault(m_helperSettings))
    {
        m_helperSettings.Serialize(map["helperSettings"]);
    }
    if (m_implName != "default")
    {
        map.try_emplace("implName", PropertyTree(m_implName));
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

// Helper settings other than the default stand in nothing that is measured, so they may take the way through a text.

void HandWrittenEffect::WriteDomBase(Dom& dom) const
{
    if (!IsDefault(m_helperSettings))
    {
        PropertyTree tree;
        m_helperSettings.Serialize(tree);
        dom["helperSettings"] = Dom::parse(WriteJson(tree));
    }
    if (m_implName != "default")
    {
        dom["implName"] = m_implName;
    }
}

void HandWrittenEffect::ReadDomBase(const Dom& dom)
{
    if (const auto found = dom.find("implName"); found != dom.end())
    {
        m_implName = found->get_ref<const std::string&>();
    }
    if (const auto found = dom.find("helperSettings"); found != dom.end())
    {
        m_helperSettings.Deserialize(ReadJson(found->dump()));
    }
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
