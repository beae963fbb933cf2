# A folder with links to the host's libraries that are headers alone. /usr/include as a whole has the headers of the host's C
# library, which must not come before those of Windows.

set(OMBREL_MINGW_ROOT ${CMAKE_BINARY_DIR}/mingw-root CACHE PATH "Links to headers of the host")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES OMBREL_MINGW_ROOT) # which has a binary folder of its own

foreach(folder IN ITEMS include/boost include/CLI include/nlohmann share/cmake/CLI11 share/cmake/nlohmann_json)
  get_filename_component(parent ${OMBREL_MINGW_ROOT}/${folder} DIRECTORY)
  file(MAKE_DIRECTORY ${parent})
  file(CREATE_LINK /usr/${folder} ${OMBREL_MINGW_ROOT}/${folder} SYMBOLIC)
endforeach()
