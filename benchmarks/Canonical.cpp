#include "Canonical.h"

#include "PropertyTreeJson/PropertyTreeJson.h"

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

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

nlohmann::json Canonical(const rapidjson::Document& document)
{
    rapidjson::StringBuffer text;
    rapidjson::Writer<rapidjson::StringBuffer> writer(text);
    document.Accept(writer);
    return nlohmann::json::parse(text.GetString());
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

} // namespace Ombrel::Benchmarks
