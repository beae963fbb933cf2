#include "Proc/Reflection/EnumNameTable.h"

#include <algorithm>

namespace Ombrel::Proc
{

std::string_view EnumNameTable::NameOf(std::int32_t value) const noexcept
{
    const auto row = std::ranges::find(rows, value, &EnumNameRow::value);
    return row == rows.end() ? std::string_view() : row->name;
}

std::int32_t EnumNameTable::ValueOf(std::string_view name) const noexcept
{
    const auto row = std::ranges::find(rows, name, &EnumNameRow::name);
    return row == rows.end() ? fallback : row->value;
}

} // namespace Ombrel::Proc
