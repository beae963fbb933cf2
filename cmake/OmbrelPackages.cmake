# Debian packages and a relocatable archive: `cmake --workflow --preset package`.
#
# Each shared library has a package of its own, whose name ends with the number by which the loader finds the library, so that two
# of them can be installed side by side. The headers, the static libraries and all that a build needs are in one package, the tool
# in another.

if(NOT BUILD_SHARED_LIBS OR NOT OMBREL_BUILD_TOOLS)
  message(FATAL_ERROR "OMBREL_PACKAGES needs BUILD_SHARED_LIBS and OMBREL_BUILD_TOOLS")
endif()
set(libraries EffectSettings PropertyTreeJson EffectInspection)

# The static libraries are made of the same objects.
foreach(library IN LISTS libraries)
  set(static ombrel_${library}Static)
  if(library STREQUAL "EffectSettings")
    get_target_property(sources ombrel_${library} SOURCES)
    add_library(${static} STATIC ${sources})
  else()
    add_library(${static} STATIC $<TARGET_OBJECTS:ombrel_${library}>)
  endif()
  get_target_property(name ombrel_${library} OUTPUT_NAME)
  set_target_properties(${static} PROPERTIES LINKER_LANGUAGE CXX OUTPUT_NAME ${name} EXPORT_NAME ${library}Static)
  target_include_directories(${static} INTERFACE $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/Ombrel>)
  target_compile_features(${static} PUBLIC cxx_std_20)
  install(TARGETS ${static} EXPORT OmbrelEffectSettingsTargets ARCHIVE COMPONENT development)
endforeach()
target_link_libraries(ombrel_EffectSettingsStatic INTERFACE Boost::headers)
target_link_libraries(ombrel_PropertyTreeJsonStatic INTERFACE ombrel_EffectSettingsStatic)
target_link_libraries(ombrel_EffectInspectionStatic INTERFACE ombrel_EffectSettingsStatic)

set(OMBREL_PACKAGE_CONTACT "Ombrel developers <developers@ombrel.invalid>" CACHE STRING "Maintainer of the packages")
set(CPACK_PACKAGE_NAME ombrel-effect-settings)
set(CPACK_PACKAGE_CONTACT "${OMBREL_PACKAGE_CONTACT}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has its own
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR})
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_PACKAGE_FILE_NAME ombrel-effect-settings-${PROJECT_VERSION}-linux-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_COMPONENTS_ALL ${libraries} development tool)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_STRIP_FILES OFF) # as Debian does it, in the script below
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_LIST_DIR}/PackageTime.cmake)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/DebianFiles.cmake)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/src ${PROJECT_BINARY_DIR}/src/PropertyTreeJson
    ${PROJECT_BINARY_DIR}/src/Inspection)
set(version ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})

set(CPACK_OMBREL_CHANGELOG ${PROJECT_SOURCE_DIR}/CHANGELOG.md)
set(CPACK_OMBREL_VERSION ${version})
set(CPACK_OMBREL_DEBIAN_FOLDER ${CMAKE_CURRENT_LIST_DIR}/debian)

# ombrel_package(component package SECTION section MULTIARCH kind SUMMARY text DESCRIPTION text DEPENDS package...)
function(ombrel_package component package)
  cmake_parse_arguments(ARG "" "SECTION;MULTIARCH;SUMMARY;DESCRIPTION" "DEPENDS" ${ARGN})
  string(TOUPPER ${component} upper)
  list(JOIN ARG_DEPENDS ", " depends)
  set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${package} PARENT_SCOPE)
  # CMake has no variable for the field before 3.31, so that it stands behind another.
  set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION "${ARG_SECTION}\nMulti-Arch: ${ARG_MULTIARCH}" PARENT_SCOPE)
  set(CPACK_DEBIAN_${upper}_PACKAGE_DEPENDS "${depends}" PARENT_SCOPE)
  set(CPACK_DEBIAN_${upper}_DESCRIPTION "${ARG_SUMMARY}\n${ARG_DESCRIPTION}" PARENT_SCOPE)
  set(CPACK_OMBREL_PACKAGE_OF_${component} ${package} PARENT_SCOPE)
endfunction()

set(texts_EffectSettings "settings of a photo editor's image effects"
    "A settings class for each effect, which is made by its class id, compared, and\nturned into a tree and back.")
set(texts_PropertyTreeJson "JSON text of the trees of image effects" "Reads and writes the trees of libombrel-effect-settings without loss.")
set(texts_EffectInspection "what stored image effects hold, and what is wrong with them"
    "Checks, describes, compares and merges the trees of libombrel-effect-settings.")
set(packages)
foreach(library IN LISTS libraries)
  get_target_property(name ombrel_${library} OUTPUT_NAME)
  set(package lib${name}${OMBREL_SOVERSION})
  set(depends)
  if(NOT library STREQUAL "EffectSettings")
    list(GET packages 0 depends)
  endif()
  list(GET texts_${library} 0 summary)
  list(GET texts_${library} 1 description)
  ombrel_package(${library} ${package} SECTION libs MULTIARCH same SUMMARY "${summary}" DESCRIPTION "${description}" DEPENDS ${depends})
  list(APPEND packages "${package} (= ${version})")

  # What packages of programs depend on; and the loader's list of libraries is written anew.
  string(TOUPPER ${library} upper)
  set(control ${PROJECT_BINARY_DIR}/debian/${package})
  file(WRITE ${control}/shlibs "lib${name} ${OMBREL_SOVERSION} ${package} (>= ${PROJECT_VERSION})\n")
  file(WRITE ${control}/triggers "activate-noawait ldconfig\n")
  # CPack would write maintainer scripts for the same, but for those that it is given. What is not there is left out.
  set(CPACK_DEBIAN_${upper}_PACKAGE_CONTROL_EXTRA ${control}/shlibs ${control}/triggers ${control}/no/postinst ${control}/no/postrm)
endforeach()
ombrel_package(development libombrel-effect-settings-dev SECTION libdevel MULTIARCH same
  SUMMARY "settings of image effects - development files"
  DESCRIPTION "Headers, static libraries, the files for CMake and pkg-config, and what shows\ntrees in a debugger."
  DEPENDS ${packages} libboost-dev)
ombrel_package(tool ombrel-effects SECTION graphics MULTIARCH foreign
  SUMMARY "shows, checks and changes files of stored image effects"
  DESCRIPTION "Checks, shows, compares, merges and edits JSON files of stored effects." DEPENDS ${packages})
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SHLIBDEPS OFF)
include(CPack)
