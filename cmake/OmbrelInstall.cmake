# What `cmake --install` puts where: the libraries that were built, their headers, what shows trees in a debugger, and what CMake
# and pkg-config need to find them. The installed tree may be moved as a whole. Each library is a component, as are "tool" and
# "development", which is the rest.

set(OMBREL_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/${PROJECT_NAME})
set(OMBREL_PKGCONFIG_DIR ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

# A .pc file knows its prefix by the way back from its own folder, which is one step longer where the libraries stand in a
# folder per architecture. With absolute folders there is nothing to move.
cmake_path(IS_ABSOLUTE CMAKE_INSTALL_LIBDIR isLibdirAbsolute)
if(isLibdirAbsolute)
  set(OMBREL_PC_PREFIX "${CMAKE_INSTALL_PREFIX}")
  set(OMBREL_PC_LIBDIR "${CMAKE_INSTALL_LIBDIR}")
else()
  file(RELATIVE_PATH back "/${OMBREL_PKGCONFIG_DIR}" "/")
  string(REGEX REPLACE "/$" "" back "${back}")
  set(OMBREL_PC_PREFIX "\${pcfiledir}/${back}")
  set(OMBREL_PC_LIBDIR "\${prefix}/${CMAKE_INSTALL_LIBDIR}")
endif()
set(OMBREL_PC_INCLUDEDIR "\${prefix}")
cmake_path(APPEND OMBREL_PC_INCLUDEDIR "${CMAKE_INSTALL_INCLUDEDIR}" Ombrel)

# Boost has no .pc file to ask for, so where the compiler does not find it by itself its folder is named.
set(OMBREL_PC_BOOST_CFLAGS)
get_target_property(boostIncludes Boost::headers INTERFACE_INCLUDE_DIRECTORIES)
if(boostIncludes)
  list(REMOVE_ITEM boostIncludes ${CMAKE_CXX_IMPLICIT_INCLUDE_DIRECTORIES})
  list(TRANSFORM boostIncludes PREPEND " -I")
  list(JOIN boostIncludes "" OMBREL_PC_BOOST_CFLAGS)
endif()

# On Windows the headers must know that names come from no DLL.
set(OMBREL_PC_DEFINITIONS)
if(WIN32 AND NOT BUILD_SHARED_LIBS)
  set(OMBREL_PC_DEFINITIONS " -DOMBREL_STATIC")
endif()

# What the link of a static library needs where no C++ compiler drives it.
set(standardLibraries ${CMAKE_CXX_IMPLICIT_LINK_LIBRARIES})
list(FILTER standardLibraries INCLUDE REGEX "^(stdc\\+\\+|c\\+\\+|m)$")
list(REMOVE_DUPLICATES standardLibraries)
list(TRANSFORM standardLibraries PREPEND " -l")
list(JOIN standardLibraries "" OMBREL_PC_STANDARD_LIBRARIES)

# ombrel_install_library(Name DESCRIPTION text FOLDERS folder... [REQUIRES name...] [PRIVATE_HEADERS file...]) installs the
# library `ombrel_Name`, the headers of its folders below src/ and its .pc file, which has the name of the library's file.
function(ombrel_install_library name)
  cmake_parse_arguments(ARG "" "DESCRIPTION" "FOLDERS;REQUIRES;PRIVATE_HEADERS" ${ARGN})
  set(target ombrel_${name})
  if(ARG_REQUIRES) # it finds its siblings where it stands itself
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN")
  endif()
  install(TARGETS ${target} EXPORT OmbrelEffectSettingsTargets
    RUNTIME COMPONENT ${name}
    LIBRARY COMPONENT ${name} NAMELINK_COMPONENT development
    ARCHIVE COMPONENT development)

  set(exclusions)
  foreach(header IN LISTS ARG_PRIVATE_HEADERS)
    list(APPEND exclusions PATTERN ${header} EXCLUDE)
  endforeach()
  foreach(folder IN LISTS ARG_FOLDERS)
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/src/${folder} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/Ombrel COMPONENT development
            FILES_MATCHING ${exclusions} PATTERN *.h)
  endforeach()

  get_target_property(OMBREL_PC_NAME ${target} OUTPUT_NAME)
  set(OMBREL_PC_DESCRIPTION "${ARG_DESCRIPTION}")
  list(TRANSFORM ARG_REQUIRES APPEND " = ${PROJECT_VERSION}")
  list(JOIN ARG_REQUIRES ", " requires)
  set(OMBREL_PC_REQUIRES)
  if(requires)
    set(OMBREL_PC_REQUIRES "\nRequires: ${requires}")
  endif()
  configure_file(${PROJECT_SOURCE_DIR}/cmake/library.pc.in ${PROJECT_BINARY_DIR}/${OMBREL_PC_NAME}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${OMBREL_PC_NAME}.pc DESTINATION ${OMBREL_PKGCONFIG_DIR} COMPONENT development)
endfunction()

install(FILES ${PROJECT_SOURCE_DIR}/src/OmbrelCompiler.h ${PROJECT_SOURCE_DIR}/src/OmbrelExport.h
              ${PROJECT_SOURCE_DIR}/src/OmbrelLasting.h
              ${PROJECT_SOURCE_DIR}/src/OmbrelVersion.h
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/Ombrel COMPONENT development)
ombrel_install_library(EffectSettings
  DESCRIPTION "${PROJECT_DESCRIPTION}"
  FOLDERS Conf Exception PhotoUtil Proc PropertyTree
  PRIVATE_HEADERS Characters.h KindNames.h KnownTexts.h PropertyTreeKey.h PropertyTreeMapFiller.h PropertyTreeMapIndex.h
                  PropertyTreeMapInternals.h RegisteredClasses.h ScaledInteger.h StoredTexts.h WrappingArithmetic.h)
install(FILES ${PROJECT_SOURCE_DIR}/debugger/ombrel_gdb.py ${PROJECT_SOURCE_DIR}/debugger/ombrel.natvis
        DESTINATION ${CMAKE_INSTALL_DATADIR}/ombrel-effect-settings COMPONENT development)
if(TARGET ombrel_PropertyTreeJson)
  ombrel_install_library(PropertyTreeJson
    DESCRIPTION "The stored form of effect settings as JSON text"
    FOLDERS PropertyTreeJson
    PRIVATE_HEADERS JsonFault.h JsonNumber.h JsonOutput.h JsonPlaceTable.h JsonScanner.h JsonText.h JsonTreeBuilder.h MessageText.h
    REQUIRES ombrel-effect-settings)
  install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples/own-effect DESTINATION ${CMAKE_INSTALL_DOCDIR}/examples COMPONENT development)
endif()
if(TARGET ombrel_EffectInspection)
  ombrel_install_library(EffectInspection
    DESCRIPTION "What stored effects hold, and what is wrong with them"
    FOLDERS Inspection
    PRIVATE_HEADERS Attempt.h CheckContext.h DiffWalk.h EffectCheck.h EffectMerge.h ElementOrder.h Findings.h Fingerprints.h FormDefaults.h
                    KeylessMembers.h KnownClass.h ListAlignment.h ListMoves.h PackedTree.h Place.h RecordInfo.h RefusedEffects.h
                    ReleaseCheck.h ReleaseModel.h
                    SchemaParts.h SharedPaths.h TreeEditor.h TreeSteps.h Trials.h Usable.h ValueCheck.h Values.h WrittenComparison.h
    REQUIRES ombrel-effect-settings)
  install(FILES ${PROJECT_SOURCE_DIR}/examples/undo.cpp DESTINATION ${CMAKE_INSTALL_DOCDIR}/examples COMPONENT development)
endif()
if(TARGET ombrel-effects) # its own rule installs it
  file(RELATIVE_PATH toLibraries "/${CMAKE_INSTALL_BINDIR}" "/${CMAKE_INSTALL_LIBDIR}")
  set_target_properties(ombrel-effects PROPERTIES INSTALL_RPATH "$ORIGIN/${toLibraries}")
endif()

set(OMBREL_COMPONENTS EffectSettings)
if(TARGET ombrel_PropertyTreeJson)
  list(APPEND OMBREL_COMPONENTS PropertyTreeJson)
endif()
if(TARGET ombrel_EffectInspection)
  list(APPEND OMBREL_COMPONENTS EffectInspection)
endif()
configure_package_config_file(
  ${PROJECT_SOURCE_DIR}/cmake/OmbrelEffectSettingsConfig.cmake.in ${PROJECT_BINARY_DIR}/OmbrelEffectSettingsConfig.cmake
  INSTALL_DESTINATION ${OMBREL_CMAKE_DIR}
  NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/OmbrelEffectSettingsConfigVersion.cmake
  COMPATIBILITY ${OMBREL_COMPATIBILITY})
install(FILES
  ${PROJECT_BINARY_DIR}/OmbrelEffectSettingsConfig.cmake
  ${PROJECT_BINARY_DIR}/OmbrelEffectSettingsConfigVersion.cmake
  DESTINATION ${OMBREL_CMAKE_DIR} COMPONENT development)
install(EXPORT OmbrelEffectSettingsTargets NAMESPACE Ombrel:: DESTINATION ${OMBREL_CMAKE_DIR} COMPONENT development)
# The package is found in the build tree too, without an installation.
export(EXPORT OmbrelEffectSettingsTargets NAMESPACE Ombrel:: FILE ${PROJECT_BINARY_DIR}/OmbrelEffectSettingsTargets.cmake)
