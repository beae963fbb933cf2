#ifndef OMBREL_OMBREL_VERSION_H
#define OMBREL_OMBREL_VERSION_H

#include "OmbrelExport.h"

/// The version of these headers: the one place where it is written. CMakeLists.txt reads the three numbers from here.
///
/// While the major version is 0, a new minor version may break its callers.
#define OMBREL_VERSION_MAJOR 0
/// The second number.
#define OMBREL_VERSION_MINOR 1
/// The third number.
#define OMBREL_VERSION_PATCH 1

/// Detail: what the string below is made of.
#define OMBREL_VERSION_QUOTE(number) #number
/// Detail, too.
#define OMBREL_VERSION_JOIN(major, minor, patch)                                                                               \
    OMBREL_VERSION_QUOTE(major) "." OMBREL_VERSION_QUOTE(minor) "." OMBREL_VERSION_QUOTE(patch)

/// The same as a string literal, such as "0.1.0".
#define OMBREL_VERSION_STRING OMBREL_VERSION_JOIN(OMBREL_VERSION_MAJOR, OMBREL_VERSION_MINOR, OMBREL_VERSION_PATCH)

namespace Ombrel
{

/// The version of the library that the program runs with, such as "0.1.0". It differs from `OMBREL_VERSION_STRING` where the
/// program was compiled with the headers of another version. Never null; the text lives as long as the library.
OMBREL_API const char* GetVersion() noexcept;

} // namespace Ombrel

#endif
