# How libraries and programs are built so that a fault in them is harder to exploit, as far as the compiler and linker know how.

include(CheckCXXCompilerFlag)
include(CheckCXXSourceCompiles)
include(CheckLinkerFlag)
include(CheckPIESupported)

# What is guarded, with a large frame. It compiles and links where the compiler can do it and the system has what that calls.
set(guarded "
  #include <cstring>
  int main(int count, char** arguments)
  {
    char copy[16384];
    std::strcpy(copy, arguments[count - 1]);
    return copy[0];
  }")
set(OMBREL_HARDENING_OPTIONS)
set(OMBREL_HARDENING_LINK_OPTIONS)
# Where the guard is in a library of its own, the linker adds that if it is told as well.
check_cxx_compiler_flag(-fstack-protector-strong OMBREL_COMPILER_KNOWS_STACK_PROTECTOR)
if(OMBREL_COMPILER_KNOWS_STACK_PROTECTOR)
  list(APPEND OMBREL_HARDENING_OPTIONS -fstack-protector-strong)
  set(CMAKE_REQUIRED_DEFINITIONS -fstack-protector-strong)
  check_cxx_source_compiles("${guarded}" OMBREL_STACK_PROTECTOR_LINKS)
  if(NOT OMBREL_STACK_PROTECTOR_LINKS)
    list(APPEND OMBREL_HARDENING_LINK_OPTIONS -fstack-protector-strong)
  endif()
  unset(CMAKE_REQUIRED_DEFINITIONS)
endif()
check_cxx_compiler_flag(-fstack-clash-protection OMBREL_COMPILER_KNOWS_STACK_CLASH_PROTECTION)
if(OMBREL_COMPILER_KNOWS_STACK_CLASH_PROTECTION)
  set(CMAKE_REQUIRED_DEFINITIONS -fstack-clash-protection)
  check_cxx_source_compiles("${guarded}" OMBREL_STACK_CLASH_PROTECTION_COMPILES)
  if(OMBREL_STACK_CLASH_PROTECTION_COMPILES)
    list(APPEND OMBREL_HARDENING_OPTIONS -fstack-clash-protection)
  endif()
  unset(CMAKE_REQUIRED_DEFINITIONS)
endif()

# Bound when it is loaded, and read-only from then on.
check_linker_flag(CXX "-Wl,-z,relro,-z,now" OMBREL_LINKER_KNOWS_RELRO)
if(OMBREL_LINKER_KNOWS_RELRO)
  list(APPEND OMBREL_HARDENING_LINK_OPTIONS -Wl,-z,relro,-z,now)
endif()

# Programs are position-independent also where the compiler does not link them so by itself. As a subproject no program is built,
# and the programs of the parent are left as they are.
if(OMBREL_BUILD_TOOLS)
  check_pie_supported(LANGUAGES CXX)
endif()

# The C library checks sizes only in optimised code and warns without. A value that the compiler or its flags give already, as
# those of distributions do, is left as it is. A sanitizer checks more itself.
set(OMBREL_FORTIFIED_CONFIGURATIONS)
if(NOT CMAKE_CXX_FLAGS MATCHES "-fsanitize")
  set(configurations ${CMAKE_CONFIGURATION_TYPES})
  if(NOT configurations)
    set(configurations ${CMAKE_BUILD_TYPE})
  endif()
  set(CMAKE_REQUIRED_LINK_OPTIONS ${OMBREL_HARDENING_LINK_OPTIONS})
  foreach(CMAKE_TRY_COMPILE_CONFIGURATION IN LISTS configurations)
    string(TOUPPER "${CMAKE_TRY_COMPILE_CONFIGURATION}" upper)
    # The answer is kept for these flags, not for others that are set later.
    string(MD5 flags "${CMAKE_CXX_FLAGS} ${CMAKE_CXX_FLAGS_${upper}}")
    check_cxx_source_compiles("
      #if !defined(__OPTIMIZE__) || defined(_FORTIFY_SOURCE)
      #error
      #endif
      #define _FORTIFY_SOURCE 2
      ${guarded}" OMBREL_FORTIFY_${upper}_${flags})
    if(OMBREL_FORTIFY_${upper}_${flags})
      list(APPEND OMBREL_FORTIFIED_CONFIGURATIONS ${CMAKE_TRY_COMPILE_CONFIGURATION})
    endif()
  endforeach()
  unset(CMAKE_REQUIRED_LINK_OPTIONS)
endif()

function(ombrel_harden target)
  target_compile_options(${target} PRIVATE ${OMBREL_HARDENING_OPTIONS})
  if(OMBREL_FORTIFIED_CONFIGURATIONS)
    list(JOIN OMBREL_FORTIFIED_CONFIGURATIONS "," configurations)
    target_compile_definitions(${target} PRIVATE $<$<CONFIG:${configurations}>:_FORTIFY_SOURCE=2>)
  endif()
  target_link_options(${target} PRIVATE ${OMBREL_HARDENING_LINK_OPTIONS})
endfunction()
