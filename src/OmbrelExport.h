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

// Everything is built with hidden visibility, so a name without a mark stays inside. On Windows a header says whether a name
// comes from another file: a library is built with OMBREL_BUILDS_ and its name, and whoever links the static libraries defines
// OMBREL_STATIC, as the CMake package and pkg-config do.
#ifndef _WIN32
/// What the marks of a library mean while it is built.
#define OMBREL_EXPORTED __attribute__((visibility("default")))
/// What they mean to its callers.
#define OMBREL_IMPORTED OMBREL_EXPORTED
/// Marks a type that exists in headers alone and is one type in all libraries: what is thrown, and bases of exported classes.
#define OMBREL_SHARED_TYPE OMBREL_EXPORTED
/// Marks what belongs to an exported class and stays inside all the same.
#define OMBREL_LOCAL __attribute__((visibility("hidden")))
/// Marks a namespace of which every library and program has its own.
#define OMBREL_LOCAL_NAMESPACE [[gnu::visibility("hidden")]]
#else
#ifdef OMBREL_STATIC
#define OMBREL_EXPORTED
#define OMBREL_IMPORTED
#else
#define OMBREL_EXPORTED __declspec(dllexport)
#define OMBREL_IMPORTED __declspec(dllimport)
#endif
#define OMBREL_SHARED_TYPE     // types are compared by their names
#define OMBREL_LOCAL           // a member is exported with its class
#define OMBREL_LOCAL_NAMESPACE // what is in no exported class stays inside
#endif

/// Marks what the settings library exports.
#ifdef OMBREL_BUILDS_EFFECT_SETTINGS
#define OMBREL_API OMBREL_EXPORTED
#else
#define OMBREL_API OMBREL_IMPORTED
#endif

/// Marks what the JSON library exports.
#ifdef OMBREL_BUILDS_PROPERTY_TREE_JSON
#define OMBREL_JSON_API OMBREL_EXPORTED
#else
#define OMBREL_JSON_API OMBREL_IMPORTED
#endif

/// Marks what the inspection library exports.
#ifdef OMBREL_BUILDS_EFFECT_INSPECTION
#define OMBREL_INSPECTION_API OMBREL_EXPORTED
#else
#define OMBREL_INSPECTION_API OMBREL_IMPORTED
#endif

#endif
