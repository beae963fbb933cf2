# Read by CPack for each kind of package.

# The archive has no folder usr/, since it may be unpacked anywhere.
if(CPACK_GENERATOR STREQUAL "TGZ")
  set(CPACK_PACKAGING_INSTALL_PREFIX "/")
endif()

# Files in packages have the date of the newest release in the changelog, so that two builds give the same bytes. A date that is
# set stays.
if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
  file(STRINGS ${CPACK_OMBREL_CHANGELOG} sections REGEX "^## .* - [0-9-]+$" LIMIT_COUNT 1)
  string(REGEX MATCH "[0-9]+-[0-9]+-[0-9]+$" date "${sections}")
  execute_process(COMMAND date --utc +%s --date ${date} OUTPUT_VARIABLE seconds OUTPUT_STRIP_TRAILING_WHITESPACE
                  COMMAND_ERROR_IS_FATAL ANY)
  set(ENV{SOURCE_DATE_EPOCH} ${seconds})
endif()
