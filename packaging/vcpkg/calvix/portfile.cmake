# Builds the checkout that this port lies in.

vcpkg_check_linkage(ONLY_DYNAMIC_LIBRARY)
vcpkg_check_features(OUT_FEATURE_OPTIONS features FEATURES host CALVIX_BUILD_HOST)
get_filename_component(source "${CMAKE_CURRENT_LIST_DIR}/../../.." ABSOLUTE)

vcpkg_cmake_configure(
    SOURCE_PATH "${source}"
    OPTIONS
        ${features}
        -DCALVIX_BUILD_TESTS=OFF
        -DCALVIX_BUILD_EXAMPLES=OFF
        "-DCALVIX_HEADER_ONLY_PREFIX=${CURRENT_INSTALLED_DIR}")
vcpkg_cmake_install()
vcpkg_cmake_config_fixup(CONFIG_PATH lib/cmake/calvix)
vcpkg_fixup_pkgconfig()
if("host" IN_LIST FEATURES)
    vcpkg_copy_tools(TOOL_NAMES calvix AUTO_CLEAN)
endif()

file(REMOVE_RECURSE
    "${CURRENT_PACKAGES_DIR}/debug/include"
    "${CURRENT_PACKAGES_DIR}/debug/share"
    "${CURRENT_PACKAGES_DIR}/share/doc")
file(INSTALL "${CMAKE_CURRENT_LIST_DIR}/usage" DESTINATION "${CURRENT_PACKAGES_DIR}/share/${PORT}")
vcpkg_install_copyright(FILE_LIST "${source}/LICENSE")
