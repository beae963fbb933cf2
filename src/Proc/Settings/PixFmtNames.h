#ifndef OMBREL_PROC_SETTINGS_PIX_FMT_NAMES_H
#define OMBREL_PROC_SETTINGS_PIX_FMT_NAMES_H

#include "Proc/Reflection/EnumNameTable.h"
#include "Proc/Settings/PixFmt.h"

#include <cstdint>

namespace Ombrel::Proc
{

/// The one table whose unknown names do not read as 0, since 0 is a real format: they read as `None`.
template <> struct OMBREL_API EnumNames<PixFmt>
{
    static const EnumNameTable TABLE;
};

} // namespace Ombrel::Proc

#endif
