# What every target of this project has in common.

include(CheckLinkerFlag)

option(OMBREL_WARNINGS_AS_ERRORS "Treat warnings as errors" OFF)
if(MSVC) # its options have names of their own; clang-cl takes them too
  set(OMBREL_WARNINGS /W4 $<$<BOOL:${OMBREL_WARNINGS_AS_ERRORS}>:/WX>)
  set(OMBREL_COMPILE_OPTIONS /permissive- /utf-8 /EHsc /bigobj)
  set(OMBREL_RELEASE_OPTIONS /Gy)
  set(OMBREL_SMALL_OPTIONS /O1)
else()
  set(OMBREL_WARNINGS -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast -Woverloaded-virtual
      -Wnon-virtual-dtor $<$<BOOL:${OMBREL_WARNINGS_AS_ERRORS}>:-Werror>)
  if(NOT CMAKE_CXX_FLAGS MATCHES "-fsanitize") # what a sanitizer puts between confuses it
    list(APPEND OMBREL_WARNINGS -Wnull-dereference)
  endif()
  # Without it a library that instantiates a template's static can never be unloaded.
  set(OMBREL_COMPILE_OPTIONS $<$<CXX_COMPILER_ID:GNU>:-fno-gnu-unique>)
  # Each function has a section of its own, so that a linker can leave out what nobody calls. What is handed out names no folder
  # of the machine that built it, in its debug information either. Where one folder stands in the other the later option holds.
  set(OMBREL_RELEASE_OPTIONS -ffunction-sections -fdata-sections
      -ffile-prefix-map=${PROJECT_SOURCE_DIR}=. -ffile-prefix-map=${PROJECT_BINARY_DIR}=.)
  set(OMBREL_SMALL_OPTIONS -Os)
endif()
# For code that runs seldom.
set(OMBREL_SMALL_OPTIONS "$<$<NOT:$<CONFIG:Debug>>:${OMBREL_SMALL_OPTIONS}>")

# Callers depend on the number in the libraries' names. While the major version is 0, a new minor version may break them. The
# first release with such a number gives the names that are exported their version.
if(PROJECT_VERSION_MAJOR EQUAL 0)
  set(OMBREL_SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
  set(OMBREL_FIRST_RELEASE ${OMBREL_SOVERSION})
  set(OMBREL_COMPATIBILITY SameMinorVersion)
else()
  set(OMBREL_SOVERSION ${PROJECT_VERSION_MAJOR})
  set(OMBREL_FIRST_RELEASE ${PROJECT_VERSION_MAJOR}.0)
  set(OMBREL_COMPATIBILITY SameMajorVersion)
endif()

# The library is bound to itself and packs its relocations, which makes it load several times faster. What it must share with
# the program stands in a list; a linker that knows no such list binds the functions only. On Windows a library is always bound to
# itself, and the headers say what it exports.
set(OMBREL_SHARED_OBJECTS ${CMAKE_CURRENT_LIST_DIR}/shared-objects.list)
set(OMBREL_SHARED_LINK_OPTIONS)
if(NOT WIN32)
  check_linker_flag(CXX "-Wl,--dynamic-list=${OMBREL_SHARED_OBJECTS}" OMBREL_LINKER_TAKES_LISTS)
  if(OMBREL_LINKER_TAKES_LISTS)
    set(OMBREL_SHARED_LINK_OPTIONS -Wl,--dynamic-list=${OMBREL_SHARED_OBJECTS})
  else()
    set(OMBREL_SHARED_LINK_OPTIONS -Wl,-Bsymbolic-functions)
  endif()
endif()
check_linker_flag(CXX "-Wl,-z,pack-relative-relocs,--fatal-warnings" OMBREL_LINKER_PACKS_RELOCATIONS)
if(OMBREL_LINKER_PACKS_RELOCATIONS)
  list(APPEND OMBREL_SHARED_LINK_OPTIONS -Wl,-z,pack-relative-relocs)
endif()
set(OMBREL_EXPORTS ${PROJECT_BINARY_DIR}/exports.map)
configure_file(${CMAKE_CURRENT_LIST_DIR}/exports.map.in ${OMBREL_EXPORTS} @ONLY)
if(NOT WIN32)
  check_linker_flag(CXX "-Wl,--version-script=${OMBREL_EXPORTS}" OMBREL_LINKER_HAS_VERSION_SCRIPTS)
endif()
if(OMBREL_LINKER_HAS_VERSION_SCRIPTS)
  list(APPEND OMBREL_SHARED_LINK_OPTIONS -Wl,--version-script=${OMBREL_EXPORTS})
endif()

# What nobody calls is left out.
check_linker_flag(CXX "-Wl,--gc-sections" OMBREL_LINKER_COLLECTS_SECTIONS)
if(OMBREL_LINKER_COLLECTS_SECTIONS)
  list(APPEND OMBREL_SHARED_LINK_OPTIONS -Wl,--gc-sections)
endif()

# What is loaded into a program refers to nothing that no library on its list has.
if(NOT CMAKE_CXX_FLAGS MATCHES "-fsanitize")
  check_linker_flag(CXX "-Wl,-z,defs" OMBREL_LINKER_KNOWS_DEFS)
  if(OMBREL_LINKER_KNOWS_DEFS)
    list(APPEND OMBREL_SHARED_LINK_OPTIONS -Wl,-z,defs)
  endif()
endif()

include(${CMAKE_CURRENT_LIST_DIR}/OmbrelHardening.cmake)

function(ombrel_defaults target)
  target_compile_features(${target} PUBLIC cxx_std_20)
  set_target_properties(${target} PROPERTIES
    CXX_EXTENSIONS OFF
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON
    POSITION_INDEPENDENT_CODE ON
    BUILD_RPATH_USE_ORIGIN ON) # no folder of the machine that built it, not even by its length
  target_compile_options(${target} PRIVATE ${OMBREL_WARNINGS} ${OMBREL_COMPILE_OPTIONS}
    "$<$<NOT:$<CONFIG:Debug>>:${OMBREL_RELEASE_OPTIONS}>")
  ombrel_harden(${target})
  get_target_property(type ${target} TYPE)
  if(type STREQUAL "SHARED_LIBRARY")
    target_link_options(${target} PRIVATE ${OMBREL_SHARED_LINK_OPTIONS})
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${OMBREL_SHARED_OBJECTS} ${OMBREL_EXPORTS})
  endif()
endfunction()

# What test programs have beside that. A test may crash where what it expects is not there, and optimised g++ 12 takes short texts
# for copies beyond all memory.
function(ombrel_test_defaults target)
  ombrel_defaults(${target})
  target_compile_options(${target} PRIVATE $<$<NOT:$<BOOL:${MSVC}>>:-Wno-null-dereference>
    "$<$<CXX_COMPILER_ID:GNU>:-Wno-array-bounds;-Wno-stringop-overflow;-Wno-stringop-overread;-Wno-restrict>")
endfunction()

# ombrel_exports(target symbol) lets the headers say on Windows what the library exports and what its callers import: the target is
# built with the symbol.
function(ombrel_exports target symbol)
  if(NOT BUILD_SHARED_LIBS)
    target_compile_definitions(${target} PUBLIC $<$<PLATFORM_ID:Windows>:OMBREL_STATIC>)
  else()
    target_compile_definitions(${target} PRIVATE $<$<PLATFORM_ID:Windows>:${symbol}>)
  endif()
endfunction()

# ombrel_component(Name SOURCES file... [USES Name...]) makes one of the library's parts, an object library
# `ombrel_Name` with the alias `Ombrel::Name`. What a component uses it may include and call; nothing else of the
# library is on its way, so that every component can be linked and tested with those alone.
function(ombrel_component name)
  cmake_parse_arguments(ARG "" "" "SOURCES;USES" ${ARGN})
  set(target ombrel_${name})
  add_library(${target} OBJECT ${ARG_SOURCES})
  add_library(Ombrel::${name} ALIAS ${target})
  ombrel_defaults(${target})
  ombrel_exports(${target} OMBREL_BUILDS_EFFECT_SETTINGS)
  target_compile_definitions(${target} INTERFACE $<$<PLATFORM_ID:Windows>:OMBREL_STATIC>)
  target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/src>)
  # The objects of what is used are named once more by whoever links, since an object library does not pass them on.
  set(closure ${target})
  foreach(used IN LISTS ARG_USES)
    get_target_property(more ombrel_${used} OMBREL_CLOSURE)
    list(APPEND closure ${more})
  endforeach()
  list(REMOVE_DUPLICATES closure)
  set_target_properties(${target} PROPERTIES OMBREL_CLOSURE "${closure}")
endfunction()
