#include "StoredEffects.h"

#include "Exception/Exception.h"
#include "Proc/EffectSettings/EffectSettings.h"
#include "Proc/Settings/Settings.h"
#include "Proc/Settings/StoredKeys.h"
#include "PropertyTreeJson/PropertyTreeJson.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <typeinfo>

namespace Fuzz
{
namespace
{

using namespace Ombrel;
using namespace Ombrel::PhotoCore;

// As many as 512 nested effects and one more take, each a map in a list.
constexpr std::size_t MAX_DEPTH = 1100;

bool IsMap(const PropertyTree& tree)
{
    return !tree.isNull() && !tree.isScalar() && !tree.isList();
}

bool IsText(const PropertyTree& tree)
{
    return tree.isScalar() && tree.getScalar().kind() == PropertyTreeScalar::Kind::String;
}

std::string WithBrokenBytes(std::string text)
{
    constexpr std::string_view mark = "\xEF\xBF\xBD";
    for (std::size_t at = text.find(mark); at != std::string::npos; at = text.find(mark, at))
    {
        text.replace(at, mark.size(), "\xFF");
    }
    return text;
}

void BreakBytes(PropertyTree& tree)
{
    if (IsText(tree))
    {
        tree = WithBrokenBytes(tree.getScalar().toString());
    }
    else if (tree.isList())
    {
        std::ranges::for_each(tree.getList(), &BreakBytes);
    }
    else if (IsMap(tree))
    {
        for (auto& [key, child] : tree.getMap())
        {
            BreakBytes(child);
        }
    }
}

} // namespace

std::vector<PropertyTree> ParseInput(const std::uint8_t* data, std::size_t size)
{
    PropertyTree tree;
    try
    {
        tree = ReadJson({reinterpret_cast<const char*>(data), size}, {.maxDepth = MAX_DEPTH, .nonFiniteAsText = true});
    }
    catch (const JsonError&)
    {
        return {};
    }
    BreakBytes(tree);
    return tree.isList() ? std::move(tree.getList()) : std::vector{tree};
}

const EffectClass* ClassOf(const PropertyTree& tree)
{
    if (!tree.contains(Proc::StoredKeys::NAME) || !IsText(tree[Proc::StoredKeys::NAME]))
    {
        return nullptr;
    }
    const auto classes = EffectClasses();
    const auto found = std::ranges::find(classes, tree[Proc::StoredKeys::NAME].getScalar().toString(), &EffectClass::classId);
    return found == classes.end() ? nullptr : &*found;
}

std::shared_ptr<IEffectSettings> Make(const EffectClass& effectClass)
{
    return effectClass.create();
}

std::optional<std::string> Read(const PropertyTree& tree, std::shared_ptr<IEffectSettings>& effect)
{
    const EffectClass* const effectClass = ClassOf(tree);
    if (effectClass && effectClass->registration == Registration::None)
    {
        effect = Make(*effectClass);
        return FailureOf([&] { effect->Deserialize(tree); });
    }
    return FailureOf([&] { EffectSettings::DeserializePtr(tree, effect); });
}

std::optional<std::string> FailureOf(const std::function<void()>& work)
{
    try
    {
        work();
    }
    catch (const Exception& failure)
    {
        return "Exception: " + *boost::get_error_info<ErrorDescription>(failure);
    }
    catch (const std::invalid_argument& failure)
    {
        return std::string("invalid_argument: ") + failure.what();
    }
    catch (const std::out_of_range& failure)
    {
        return std::string("out_of_range: ") + failure.what();
    }
    catch (const std::length_error& failure)
    {
        return std::string("length_error: ") + failure.what();
    }
    return std::nullopt;
}

void* SubjectOf(IEffectSettings& effect)
{
    return effect.GetPropertyAccess() ? dynamic_cast<void*>(&effect.GetEffectSettingsRef()) : dynamic_cast<void*>(&effect);
}

bool HasPart(const PropertyTree& tree, const std::function<bool(const PropertyTree&)>& condition)
{
    const auto isIn = [&condition](const PropertyTree& part) { return HasPart(part, condition); };
    return condition(tree) || (tree.isList() && std::ranges::any_of(tree.getList(), isIn)) ||
           (IsMap(tree) && std::ranges::any_of(tree.getMap(), [&](const auto& entry) { return isIn(entry.second); }));
}

bool Names(const PropertyTree& tree, const std::vector<std::string_view>& classIds)
{
    return HasPart(tree,
                   [&classIds](const PropertyTree& part)
                   {
                       const EffectClass* const effectClass = ClassOf(part);
                       return effectClass && std::ranges::count(classIds, effectClass->classId) != 0;
                   });
}

bool HasNonFinite(const PropertyTree& tree)
{
    return HasPart(tree,
                   [](const PropertyTree& part)
                   {
                       return part.isScalar() && part.getScalar().kind() == PropertyTreeScalar::Kind::Float &&
                              !std::isfinite(part.getScalar().toDouble());
                   });
}

} // namespace Fuzz
