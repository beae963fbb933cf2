#ifndef OMBREL_BENCHMARKS_CANONICAL_H
#define OMBREL_BENCHMARKS_CANONICAL_H

#include "Proc/EffectSettings/IEffectSettings.h"
#include "PropertyTree/PropertyTree.h"

#include <nlohmann/json.hpp>
#include <rapidjson/document.h>

#include <memory>
#include <string>
#include <vector>

namespace Ombrel::Benchmarks
{

// One form for the results of all variants, so that any two of them can be compared.

nlohmann::json Canonical(bool value);
nlohmann::json Canonical(const nlohmann::json& value);
nlohmann::json Canonical(const PropertyTree& tree);
nlohmann::json Canonical(const rapidjson::Document& document);

/// What the JSON text says.
nlohmann::json Canonical(const std::string& text);

/// The stored form with the class id.
nlohmann::json Canonical(const PhotoCore::IEffectSettings& effect);

template <class Effect> nlohmann::json Canonical(const std::shared_ptr<Effect>& effect)
{
    return Canonical(*effect);
}

template <class Effect> nlohmann::json Canonical(const std::vector<std::shared_ptr<Effect>>& effects)
{
    nlohmann::json list = nlohmann::json::array();
    for (const std::shared_ptr<Effect>& effect : effects)
    {
        list.push_back(Canonical(effect));
    }
    return list;
}

} // namespace Ombrel::Benchmarks

#endif
