#include "Canonical.h"

#include "PropertyTreeJson/PropertyTreeJson.h"

namespace Ombrel::Benchmarks
{

nlohmann::json Canonical(bool value)
{
    return value;
}

nlohmann::json Canonical(const nlohmann::json& value)
{
    return value;
}

nlohmann::json Canonical(const PropertyTree& tree)
{
    return Canonical(WriteJson(tree));
}

nlohmann::json Canonical(const std::string& text)
{
    return nlohmann::json::parse(text);
}

nlohmann::json Canonical(const PhotoCore::IEffectSettings& effect)
{
    PropertyTree tree;
    effect.Serialize(tree);
    tree["name"] = effect.GetClassId();
    return Canonical(tree);
}

nlohmann::json Canonical(const Proc::Settings& record)
{
    const auto effect = PhotoCore::IEffectSettings::CreateEffectSettings(record.GetClassId());
    effect->SetEffectSettings(record);
    return Canonical(*effect);
}

} // namespace Ombrel::Benchmarks
