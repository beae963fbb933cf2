# What every target of this project has in common.

set(OMBREL_WARNINGS -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Woverloaded-virtual -Wnon-virtual-dtor)
option(OMBREL_WARNINGS_AS_ERRORS "Treat warnings as errors" OFF)

function(ombrel_defaults target)
  target_compile_features(${target} PUBLIC cxx_std_20)
  set_target_properties(${target} PROPERTIES
    CXX_EXTENSIONS OFF
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON)
  target_compile_options(${target} PRIVATE ${OMBREL_WARNINGS} $<$<BOOL:${OMBREL_WARNINGS_AS_ERRORS}>:-Werror>)
  # Without it a library that instantiates a template's static can never be unloaded.
  target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fno-gnu-unique>)
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
  set_target_properties(${target} PROPERTIES POSITION_INDEPENDENT_CODE ON)
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
