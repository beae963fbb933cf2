#include "catalogue/Catalogue.h"

#include <algorithm>
#include <iterator>
#include <ostream>

using Ombrel::PropertyTree;

namespace Catalogue
{
namespace
{

Field Plain(std::string key, Kind kind, PropertyTree defaultValue, PropertyTree sample)
{
    Field field{};
    field.key = std::move(key);
    field.kind = kind;
    field.defaultValue = std::move(defaultValue);
    field.sample = std::move(sample);
    return field;
}

} // namespace

Field Int32(std::string key, std::int32_t defaultValue)
{
    return Plain(std::move(key), Kind::Int32, defaultValue, defaultValue == -7 ? -8 : -7);
}

Field UInt32(std::string key, std::uint32_t defaultValue)
{
    return Plain(std::move(key), Kind::UInt32, defaultValue, 3000000000u);
}

Field UInt8(std::string key, std::uint8_t defaultValue)
{
    return Plain(std::move(key), Kind::UInt8, defaultValue, 200);
}

Field Int64(std::string key, std::int64_t defaultValue)
{
    return Plain(std::move(key), Kind::Int64, defaultValue, std::int64_t{-5000000000});
}

Field Float64(std::string key, double defaultValue)
{
    return Plain(std::move(key), Kind::Float64, defaultValue, 0.3);
}

Field Float32(std::string key, float defaultValue)
{
    return Plain(std::move(key), Kind::Float32, defaultValue, 0.375); // exact in 32 bits
}

Field Bool(std::string key, bool defaultValue)
{
    return Plain(std::move(key), Kind::Bool, defaultValue, !defaultValue);
}

Field String(std::string key, std::string defaultValue)
{
    return Plain(std::move(key), Kind::String, std::move(defaultValue), "a text");
}

Field Color(std::string key, std::string defaultValue)
{
    return Plain(std::move(key), Kind::Color, std::move(defaultValue), "12ab56cd");
}

Field Enum(std::string key, std::string defaultValue, std::vector<EnumName> names, std::int32_t fallback, NumberOf number)
{
    const auto other = std::ranges::find_if(names, [&](const EnumName& name) { return name.name != defaultValue; });
    Field field = Plain(std::move(key), Kind::Enum, defaultValue, std::string(other->name));
    field.names = std::move(names);
    field.fallback = fallback;
    field.number = std::move(number);
    return field;
}

Field Record(std::string key, std::vector<Field> nested,
             std::initializer_list<std::pair<std::string_view, PropertyTree>> overrides)
{
    PropertyTree defaultValue = DefaultForm(nested);
    for (const auto& [nestedKey, value] : overrides)
    {
        defaultValue[nestedKey] = value;
    }
    PropertyTree sample = defaultValue;
    sample[nested.front().key] = nested.front().sample;
    Field field = Plain(std::move(key), Kind::Record, std::move(defaultValue), std::move(sample));
    field.nested = std::move(nested);
    return field;
}

Field Other(std::string key, Kind kind, PropertyTree defaultValue, PropertyTree sample)
{
    return Plain(std::move(key), kind, std::move(defaultValue), std::move(sample));
}

Field OfNames(Field field, std::vector<EnumName> names, std::int32_t fallback)
{
    field.names = std::move(names);
    field.fallback = fallback;
    return field;
}

Field NotCompared(Field field)
{
    field.isCompared = false;
    return field;
}

Field Tolerant(Field field, double tolerance)
{
    field.tolerance = tolerance;
    return field;
}

Field Within(Field field, double least, double most)
{
    field.range = {least, most};
    return field;
}

Field Appended(Field field)
{
    field.isAppended = true;
    return field;
}

Field AlwaysWritten(Field field)
{
    field.isAlwaysWritten = true;
    return field;
}

Field Scaled(Field field)
{
    field.isScaled = true;
    return field;
}

Field Redirected(Field field, std::string target, PropertyTree targetValue)
{
    field.target = std::move(target);
    field.targetValue = std::move(targetValue);
    return field;
}

Field TakingNumbers(Field field)
{
    field.takesNumbers = true;
    return field;
}

PropertyTree DefaultForm(const std::vector<Field>& fields)
{
    PropertyTree tree;
    tree.convertToMap();
    for (const Field& field : fields)
    {
        tree[field.key] = field.defaultValue;
    }
    return tree;
}

const std::vector<Effect>& All()
{
    static const std::vector<Effect> rows = []
    {
        std::vector<Effect> all;
        for (auto group : {&ArtisticRows, &BlurAndDetailRows, &ColourCorrectionRows, &ColourMappingRows, &FaceRows,
                           &FrameworkRows, &GeometryRows, &MaskRows, &NeuralRows})
        {
            std::ranges::move(group(), std::back_inserter(all));
        }
        return all;
    }();
    return rows;
}

void PrintTo(const Effect& effect, std::ostream* out)
{
    *out << effect.className;
}

} // namespace Catalogue
