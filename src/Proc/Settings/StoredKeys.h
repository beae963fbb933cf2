#ifndef OMBREL_PROC_SETTINGS_STORED_KEYS_H
#define OMBREL_PROC_SETTINGS_STORED_KEYS_H

#include "OmbrelExport.h"

#include <array>
#include <string_view>

namespace Ombrel::Proc::StoredKeys
{

/// The keys of the effect itself. They share one map with the keys of its record.
inline constexpr std::string_view NAME = "name"; // holds the class id
inline constexpr std::string_view IMPL_NAME = "implName";
inline constexpr std::string_view HELPER_SETTINGS = "helperSettings";

/// All of them: no field of a record may have one as its key.
inline constexpr std::array RESERVED{NAME, IMPL_NAME, HELPER_SETTINGS};

} // namespace Ombrel::Proc::StoredKeys

#endif
