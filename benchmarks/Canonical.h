#ifndef OMBREL_BENCHMARKS_CANONICAL_H
#define OMBREL_BENCHMARKS_CANONICAL_H

#include "Proc/EffectSettings/IEffectSettings.h"
#include "Proc/Settings/Settings.h"
#include "PropertyTree/PropertyTree.h"

#include <nlohmann/json.hpp>

#include <memory>
#include <string>
#include <vector>

namespace Ombrel::Benchmarks
{

// One form for the results of all variants, so that any two of them can be compared.

nlohmann::json Canonical(bool value);
nlohmann::json Canonical(const nlohmann::json& value);
nlohmann::json Canonical(const PropertyTree& tree);

/// What the JSON text says.
nlohmann::json Canonical(const std::string& text);

/// The stored form with the class id.
nlohmann::json Canonical(const PhotoCore::IEffectSettings& effect);
nlohmann::json Canonical(const Proc::Settings& record);

/// What the document of another library says.
template <class Document>
requires(requires(const Document& document) { document.Text(); }) nlohmann::json Canonical(const Document& document)
{
    return Canonical(document.Text());
}

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
