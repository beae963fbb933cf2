#include "Inspection/Values.h"
#include "Proc/Reflection/EnumNameTable.h"

namespace Ombrel::Inspection
{

using Proc::ValueKind;

std::string ExpectedOf(const Proc::ValueSchema& schema)
{
    switch (schema.kind)
    {
    case ValueKind::Int32:
        return "an integer from -2147483648 to 2147483647";
    case ValueKind::UInt32:
        return "an integer from 0 to 4294967295";
    case ValueKind::UInt8:
        return "an integer from 0 to 255";
    case ValueKind::Int64:
    case ValueKind::UInt64:
        return "an integer of 64 bits";
    case ValueKind::Float64:
    case ValueKind::Float32:
        return "a number";
    case ValueKind::Bool:
        return "true or false";
    case ValueKind::String:
        return "a text";
    case ValueKind::Enum:
    {
        std::string names = "one of the names ";
        for (const Proc::EnumNameRow& row : schema.names->rows)
        {
            names += (&row == schema.names->rows.data() ? "" : ", ") + Quoted(row.name);
        }
        return names;
    }
    case ValueKind::Color:
        return "a colour of eight hexadecimal digits, such as \"ff0000ff\"";
    case ValueKind::Record:
        return "a map";
    case ValueKind::List:
    case ValueKind::Set:
        return "a list";
    case ValueKind::ColorMap:
        return "a list of maps with \"key\" and \"value\"";
    case ValueKind::Effect:
        return "an effect or null";
    default:
        return {};
    }
}

} // namespace Ombrel::Inspection
