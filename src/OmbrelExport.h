#ifndef OMBREL_EXPORT_H
#define OMBREL_EXPORT_H

// Every header of the library includes this one, so an older standard is named here before anything else fails.
#ifdef _MSVC_LANG // there __cplusplus stays at 199711L unless it is asked for
#if _MSVC_LANG < 202002L
#error "Ombrel needs C++20: compile with /std:c++20 or later"
#endif
#elif __cplusplus < 202002L
#error "Ombrel needs C++20: compile with -std=c++20 or later"
#endif

/// Marks what the library exports. Everything is built with hidden visibility, so a name without this mark stays inside.
#define OMBREL_API __attribute__((visibility("default")))

/// Marks what belongs to an exported class and stays inside all the same.
#define OMBREL_LOCAL __attribute__((visibility("hidden")))

#endif
