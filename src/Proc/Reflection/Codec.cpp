#include "Proc/Reflection/Codec.h"

#include <limits>

namespace Ombrel::Proc
{

static_assert(std::numeric_limits<float>::is_iec559 && std::numeric_limits<double>::is_iec559,
              "the stored form of floats rests on IEEE arithmetic");

void WriteInteger(PropertyTree& child, std::int64_t value)
{
    child = PropertyTreeScalar(value);
}

void WriteFloat(PropertyTree& child, double value)
{
    child = PropertyTreeScalar(value);
}

void WriteBool(PropertyTree& child, bool value)
{
    child = PropertyTreeScalar(value);
}

void WriteString(PropertyTree& child, const std::string& value)
{
    child = PropertyTreeScalar(value);
}

void WriteEnum(PropertyTree& child, std::int32_t value, const EnumNameTable& table)
{
    child = PropertyTreeScalar(std::string(table.NameOf(value)));
}

std::int64_t ReadInteger(const PropertyTree& child)
{
    return child.getScalar().toInt();
}

double ReadFloat(const PropertyTree& child)
{
    return child.getScalar().toDouble();
}

void ReadBool(const PropertyTree& child, bool& value)
{
    child.getScalar().convertTo(value);
}

void ReadString(const PropertyTree& child, std::string& value)
{
    child.getScalar().convertTo(value);
}

std::int32_t ReadEnum(const PropertyTree& child, const EnumNameTable& table)
{
    return table.ValueOf(child.isScalar() ? std::string_view(child.getScalar().toString()) : std::string_view());
}

PropertyTree::List& WriteList(PropertyTree& child, std::size_t size)
{
    PropertyTree::List& list = child.makeList();
    list.resize(size);
    return list;
}

} // namespace Ombrel::Proc
