#include "Proc/Settings/RgbaColorCodec.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{
namespace
{

using KeyField = FieldDescriptor<&StoredColor::m_key>;
using ValueField = FieldDescriptor<&StoredColor::m_value>;

} // namespace

const RecordSchema& StoredColor::Schema() noexcept
{
    return Describe<StoredColor, FieldList<KeyField, ValueField>>();
}

void WriteColor(PropertyTree& child, const RgbaColor& color)
{
    child = PropertyTreeScalar(ToText(color));
}

RgbaColor ReadColor(const PropertyTree& child)
{
    return ColorFromText(child.getScalar().toCString()); // a zero inside ends the text
}

void Codec<std::map<std::uint8_t, RgbaColor>>::Write(PropertyTree& child, const Value& value, const WriteFlags*)
{
    constexpr WriteFlags whole{.resetTargets = true, .omitDefaults = false};
    auto target = WriteList(child, value.size()).begin();
    for (const auto& [key, color] : value)
    {
        Codec<StoredColor>::Write(*target++, {key, color}, &whole);
    }
}

void Codec<std::map<std::uint8_t, RgbaColor>>::Read(const PropertyTree& child, Value& value, const ReadFlags*)
{
    if (!child.isList())
    {
        return;
    }
    for (const PropertyTree& element : child.getList())
    {
        const auto key = static_cast<std::uint8_t>(ReadInteger(element[KeyField::KEY]));
        value.insert_or_assign(key, ReadColor(element[ValueField::KEY]));
    }
}

} // namespace Ombrel::Proc
