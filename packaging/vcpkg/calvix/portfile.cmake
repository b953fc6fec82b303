# Builds the checkout that this port lies in.

vcpkg_check_linkage(ONLY_DYNAMIC_LIBRARY)
get_filename_component(source "${CMAKE_CURRENT_LIST_DIR}/../../.." ABSOLUTE)

vcpkg_cmake_configure(
    SOURCE_PATH "${source}"
    OPTIONS
        -DCALVIX_BUILD_HOST=OFF
        -DCALVIX_BUILD_TESTS=OFF
        -DCALVIX_BUILD_EXAMPLES=OFF)
vcpkg_cmake_install()
vcpkg_cmake_config_fixup(CONFIG_PATH lib/cmake/calvix)
vcpkg_fixup_pkgconfig()

file(REMOVE_RECURSE
    "${CURRENT_PACKAGES_DIR}/debug/include"
    "${CURRENT_PACKAGES_DIR}/debug/share"
    "${CURRENT_PACKAGES_DIR}/share/doc")
vcpkg_install_copyright(FILE_LIST "${source}/LICENSE")
