#ifndef OMBREL_PROC_REFLECTION_ENUM_NAME_TABLE_H
#define OMBREL_PROC_REFLECTION_ENUM_NAME_TABLE_H

#include "OmbrelExport.h"

#include <cstdint>
#include <span>
#include <string_view>
#include <type_traits>

namespace Ombrel::Proc
{

/// One name of an enumeration as it is stored: case-sensitive, misspellings included.
struct EnumNameRow
{
    template <class Enum>
    requires std::is_enum_v<Enum>
    constexpr EnumNameRow(std::string_view rowName, Enum rowValue) : name(rowName), value(static_cast<std::int32_t>(rowValue))
    {
    }

    std::string_view name;
    std::int32_t value;
};

/// The names of one enumeration, in both directions. Constant data: no start-up work, no allocation in a look-up.
struct OMBREL_API EnumNameTable
{
    std::span<const EnumNameRow> rows;
    std::int32_t fallback = 0; // what an unknown name reads as, whether or not it has a name itself

    /// The name of `value`, empty if it has none.
    std::string_view NameOf(std::int32_t value) const noexcept;

    /// The value of `name`, the fallback if there is none.
    std::int32_t ValueOf(std::string_view name) const noexcept;
};

/// The table of an enumeration: specialised once with `static constexpr EnumNameTable TABLE`, beside the enumeration or in the
/// source of the only record that stores it.
template <class Enum> struct EnumNames;

} // namespace Ombrel::Proc

#endif
