# Debian's flags, all of its hardening among them. They stand before the project's own, which may add to them.
find_program(OMBREL_DPKG_BUILDFLAGS dpkg-buildflags REQUIRED)
foreach(flags IN ITEMS CPPFLAGS CXXFLAGS LDFLAGS)
  execute_process(
    COMMAND ${CMAKE_COMMAND} -E env DEB_BUILD_MAINT_OPTIONS=hardening=+all ${OMBREL_DPKG_BUILDFLAGS} --get ${flags}
    WORKING_DIRECTORY ${PROJECT_SOURCE_DIR} OUTPUT_VARIABLE debian${flags} OUTPUT_STRIP_TRAILING_WHITESPACE
    COMMAND_ERROR_IS_FATAL ANY)
endforeach()
string(PREPEND CMAKE_CXX_FLAGS "${debianCPPFLAGS} ${debianCXXFLAGS} -ffile-prefix-map=${PROJECT_BINARY_DIR}=. ")
string(PREPEND CMAKE_SHARED_LINKER_FLAGS "${debianLDFLAGS} ")
string(PREPEND CMAKE_EXE_LINKER_FLAGS "${debianLDFLAGS} ")
