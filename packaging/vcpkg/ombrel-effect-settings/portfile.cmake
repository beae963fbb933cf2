# An overlay port: it builds the sources in which it stands.
get_filename_component(SOURCE_PATH "${CMAKE_CURRENT_LIST_DIR}/../../.." ABSOLUTE)

vcpkg_check_features(OUT_FEATURE_OPTIONS options
  FEATURES
    inspection OMBREL_BUILD_INSPECTION
    json OMBREL_BUILD_JSON
    tool OMBREL_BUILD_TOOLS)
vcpkg_cmake_configure(
  SOURCE_PATH "${SOURCE_PATH}"
  OPTIONS ${options} -DOMBREL_BUILD_TESTS=OFF)
vcpkg_cmake_install()
vcpkg_cmake_config_fixup(PACKAGE_NAME OmbrelEffectSettings CONFIG_PATH lib/cmake/OmbrelEffectSettings)
vcpkg_fixup_pkgconfig()
if("tool" IN_LIST FEATURES)
  vcpkg_copy_tools(TOOL_NAMES ombrel-effects AUTO_CLEAN)
endif()
file(REMOVE_RECURSE "${CURRENT_PACKAGES_DIR}/debug/include" "${CURRENT_PACKAGES_DIR}/debug/share")
file(INSTALL "${SOURCE_PATH}/cmake/debian/copyright" DESTINATION "${CURRENT_PACKAGES_DIR}/share/${PORT}")
