# Run by CPack before it packs what the components install. The files of Debian packages get the form that Debian asks for; those
# of the archive stay as `cmake --install` writes them, without what only a debugger needs.

function(run)
  execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

function(strip_files)
  foreach(file IN LISTS ARGN)
    if(IS_SYMLINK ${file})
      continue()
    endif()
    if(file MATCHES "\\.so\\.|/bin/")
      run(strip --remove-section=.comment --remove-section=.note --strip-unneeded ${file})
    elseif(file MATCHES "\\.a$")
      run(strip --remove-section=.comment --remove-section=.note --strip-debug --enable-deterministic-archives ${file})
    endif()
  endforeach()
endfunction()

if(NOT CPACK_GENERATOR STREQUAL "DEB")
  file(GLOB_RECURSE files ${CPACK_TEMPORARY_DIRECTORY}/bin/* ${CPACK_TEMPORARY_DIRECTORY}/lib/*)
  strip_files(${files})
  return()
endif()

string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC) # of SOURCE_DATE_EPOCH

foreach(component IN LISTS CPACK_COMPONENTS_ALL)
  set(package ${CPACK_OMBREL_PACKAGE_OF_${component}})
  set(root ${CPACK_TEMPORARY_DIRECTORY}/${component})
  set(documents ${root}/usr/share/doc/${package})

  file(MAKE_DIRECTORY ${documents})
  file(COPY_FILE ${CPACK_OMBREL_DEBIAN_FOLDER}/copyright ${documents}/copyright)
  file(WRITE ${documents}/changelog.Debian
    "ombrel-effect-settings (${CPACK_OMBREL_VERSION}) unstable; urgency=medium\n\n"
    "  * The changes are in changelog.gz.\n\n"
    " -- ${CPACK_PACKAGE_CONTACT}  ${date}\n")
  file(COPY_FILE ${CPACK_OMBREL_CHANGELOG} ${documents}/changelog)
  file(GLOB pages ${root}/usr/share/man/man*/*)
  run(gzip -9n ${documents}/changelog ${documents}/changelog.Debian ${pages})

  file(MAKE_DIRECTORY ${root}/usr/share/lintian/overrides)
  file(COPY_FILE ${CPACK_OMBREL_DEBIAN_FOLDER}/lintian-overrides ${root}/usr/share/lintian/overrides/${package})

  # The system's libraries are found without a path to them.
  file(GLOB_RECURSE files ${root}/usr/bin/* ${root}/usr/lib/*)
  foreach(file IN LISTS files)
    if(file MATCHES "\\.so\\.|/bin/" AND NOT IS_SYMLINK ${file})
      file(RPATH_REMOVE FILE ${file})
    endif()
  endforeach()
  strip_files(${files})
endforeach()
