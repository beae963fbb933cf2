#include "Address.h"

#include "Inspection/Nearest.h"
#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "Proc/EffectSettings/HelperSettings.h"
#include "Proc/Settings/StoredKeys.h"
#include "ToolError.h"
#include "Values.h"

namespace Ombrel::EffectsTool
{
namespace
{

using Proc::RecordSchema;
using Proc::ValueKind;
using Proc::ValueSchema;

constexpr ValueSchema TEXT{ValueKind::String};
constexpr ValueSchema HELPER_SETTINGS{.kind = ValueKind::Record, .record = &PhotoCore::HelperSettings::Schema};
constexpr ValueSchema EFFECT{ValueKind::Effect};

const ValueSchema* FieldOf(const RecordSchema* record, const std::string& key)
{
    const auto field = record ? Proc::FindField(*record, key) : std::nullopt;
    return field ? record->fields[*field].value : nullptr;
}

const ValueSchema* KeyOfEffect(const PropertyTree& effect, const std::string& key)
{
    if (key == Proc::StoredKeys::NAME || key == Proc::StoredKeys::IMPL_NAME)
    {
        return &TEXT;
    }
    if (key == Proc::StoredKeys::HELPER_SETTINGS)
    {
        return &HELPER_SETTINGS;
    }
    const PropertyTree* name = FindChild(effect, std::string(Proc::StoredKeys::NAME));
    const auto* effectClass = name && IsString(*name) ? PhotoCore::FindEffectClass(name->getScalar().toString()) : nullptr;
    return effectClass ? FieldOf(effectClass->getSchema(), key) : nullptr;
}

const ValueSchema* Below(const ValueSchema& schema, const PropertyTree& tree, const std::string& step)
{
    switch (schema.kind)
    {
    case ValueKind::Effect:
        return KeyOfEffect(tree, step);
    case ValueKind::Record:
        return FieldOf(&schema.record(), step);
    case ValueKind::List:
    case ValueKind::Set:
    case ValueKind::ColorMap:
        return schema.element;
    default:
        return nullptr;
    }
}

std::string NearestTo(const std::string& step, const std::vector<std::string>& steps)
{
    Inspection::NearestName nearest(step);
    for (const std::string& known : steps)
    {
        nearest.Try(known);
    }
    return nearest.Get();
}

} // namespace

Address Locate(const Document& document, const Path& path)
{
    if (!document.IsList())
    {
        return {0, path};
    }
    const std::optional<std::size_t> index = IndexOf(path.front());
    if (!index || *index >= document.Size())
    {
        throw ToolError(ExitCode::Usage, document.Name() + ": " + PathText(PathView(path).first(1)) + ": no such effect, " +
                                             ExpectedBelow(document.Tree()));
    }
    return {*index, Path(path.begin() + 1, path.end())};
}

std::string Where(const Document& document, std::size_t index, PathView place)
{
    Path path = document.IsList() ? Path{std::to_string(index)} : Path{};
    path.insert(path.end(), place.begin(), place.end());
    return document.Name() + ": " + (path.empty() ? "" : PathText(path) + ": ");
}

const ValueSchema* SchemaAt(const PropertyTree& effect, PathView place)
{
    const ValueSchema* schema = &EFFECT;
    const PropertyTree* tree = &effect;
    for (const std::string& step : place)
    {
        schema = tree ? Below(*schema, *tree, step) : nullptr;
        tree = schema ? FindChild(*tree, step) : nullptr;
        if (!schema)
        {
            return nullptr;
        }
    }
    return schema;
}

void ThrowNoSuchPlace(const Document& document, std::size_t index, const PropertyTree& tree, PathView place)
{
    const PropertyTree* parent = &tree;
    std::size_t depth = 0;
    while (const PropertyTree* child = FindChild(*parent, place[depth]))
    {
        parent = child;
        ++depth;
    }
    const bool isIndex = depth == 0 && !document.IsList() && IndexOf(place[depth]);
    const std::string nearest = parent->isMap() ? NearestTo(place[depth], StepsOf(*parent)) : std::string();
    throw ToolError(ExitCode::Usage, Where(document, index, place.first(depth + 1)) + "does not exist, " +
                                         (nearest.empty() ? "" : "did you mean " + PathText(Path{nearest}) + "? ") +
                                         ExpectedBelow(*parent) +
                                         (isIndex ? "; the file is a single effect, so the index is left out" : ""));
}

} // namespace Ombrel::EffectsTool
