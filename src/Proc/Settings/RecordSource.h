#ifndef OMBREL_PROC_SETTINGS_RECORD_SOURCE_H
#define OMBREL_PROC_SETTINGS_RECORD_SOURCE_H

#include "OmbrelLasting.h"
#include "Proc/EarlyInit.h"
#include "Proc/Reflection/Folds.h"

#include <string>

// What the source file of a record includes.
namespace Ombrel::Proc
{

// A `CLASS_NAME`. On Windows a class that is exported exports those of its constants that have an address, and callers may
// refer to this one.
#ifdef _WIN32
using ClassName = const char* const&;
#else
using ClassName = const char*;
#endif

// These are compiled once. A `std::string` that is made in place would be a tenth of what the compiler does for a small record.
OMBREL_API std::string ClassIdText(ClassName name);
OMBREL_API const void* NewClassId(ClassName name); // a std::string
OMBREL_API void DeleteClassId(const void* id) noexcept;

template <class Class> const void* NewClassIdOf()
{
    return NewClassId(Class::CLASS_NAME);
}

/// What `GetClassId` of a record or settings class returns. It is there before the initialisers of a program and after its
/// destructors, unlike the public `CLASS_ID`.
template <class Class> const std::string& ClassIdOf()
{
    return LastingOf<std::string, &NewClassIdOf<Class>, &DeleteClassId>();
}

} // namespace Ombrel::Proc

#endif
