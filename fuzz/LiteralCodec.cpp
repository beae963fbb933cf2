#include "LiteralCodec.h"

#include <string_view>

namespace Fuzz
{
namespace
{

using namespace Ombrel;
using namespace Ombrel::Proc;

// The one record that is stored even by default.
constexpr std::string_view ALWAYS_WRITTEN = "backgroundSettings";

PropertyTree FullForm(const RecordSchema& schema, std::size_t index, const void* record)
{
    constexpr WriteFlags flags{.resetTargets = true, .omitDefaults = false};
    PropertyTree form;
    schema.writeField(index, record, form, &flags);
    return form;
}

} // namespace

void LiteralRead(const RecordSchema& schema, void* record, const PropertyTree::Map& source, const ReadFlags& flags)
{
    for (std::size_t index = 0; index != schema.fields.size(); ++index)
    {
        const std::string key(schema.fields[index].key);
        if (source.find(key) != source.end())
        {
            schema.readField(index, record, source.at(key), &flags);
        }
        else if (flags.resetMissing)
        {
            schema.readField(index, record, FullForm(schema, index, schema.defaults()), &flags);
        }
    }
}

void LiteralWrite(const RecordSchema& schema, const void* record, PropertyTree::Map& target, const WriteFlags& flags)
{
    for (std::size_t index = 0; index != schema.fields.size(); ++index)
    {
        const std::string key(schema.fields[index].key);
        const bool isDefault =
            key != ALWAYS_WRITTEN && FullForm(schema, index, record) == FullForm(schema, index, schema.defaults());
        if (!flags.omitDefaults || !isDefault)
        {
            schema.writeField(index, record, target[key], &flags);
        }
    }
}

} // namespace Fuzz
