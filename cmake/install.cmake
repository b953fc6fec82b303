# What `cmake --install` puts where, in four components:
#   runtime        the shared library (off Windows also libwlanapi.so) and the command-line host, with its manual page and
#                  completion
#   development    headers, the import library, the libraries of explanations and for tests, the CMake package and the pkg-config file
#   simulation     on Windows, the simulated computer in the place of the system's WLAN library
#   documentation  pages, examples and the scenario gallery, in one folder, so that their links to each other hold
# The installed tree can be moved: nothing in it says where it lies.

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# Whose programs the C++ interface fits. Archives are named for it, and the CMake package refuses others.
set(calvix_abi linux-x64)
if(MSVC)
    set(calvix_abi windows-x64-msvc)
elseif(WIN32)
    set(calvix_abi windows-x64-mingw)
endif()

set(package_folder "${CMAKE_INSTALL_LIBDIR}/cmake/calvix")

install(TARGETS calvix EXPORT calvix_targets
    RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT runtime
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT runtime NAMELINK_COMPONENT development
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT development
    INCLUDES DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
set(archives calvix_result_codes)
if(TARGET calvix_testing)
    list(APPEND archives calvix_testing)
endif()
install(TARGETS ${archives} EXPORT calvix_targets
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT development
    INCLUDES DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
if(TARGET calvix_host)
    install(TARGETS calvix_host RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT runtime)
endif()
if(WIN32)
    install(TARGETS calvix_wlanapi EXPORT calvix_targets)
endif()
if(WIN32 AND TARGET calvix_dropin)
    # Not beside the programs: whoever means the system's library must not find this one by accident.
    install(TARGETS calvix_dropin
        RUNTIME DESTINATION "${CMAKE_INSTALL_DATADIR}/calvix/dropin" COMPONENT simulation
        ARCHIVE EXCLUDE_FROM_ALL DESTINATION "${CMAKE_INSTALL_DATADIR}/calvix/dropin" COMPONENT unwanted)
elseif(NOT WIN32)
    install(TARGETS calvix_dropin EXPORT calvix_targets
        LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT runtime NAMELINK_COMPONENT development)
endif()

install(DIRECTORY include/calvix DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}" COMPONENT development)
install(EXPORT calvix_targets NAMESPACE calvix:: FILE calvix-targets.cmake
    DESTINATION "${package_folder}" COMPONENT development)
configure_package_config_file(cmake/calvix-config.cmake.in calvix-config.cmake
    INSTALL_DESTINATION "${package_folder}" PATH_VARS CMAKE_INSTALL_BINDIR CMAKE_INSTALL_LIBDIR)
write_basic_package_version_file(calvix-config-version.cmake COMPATIBILITY SameMajorVersion)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/calvix-config.cmake" "${CMAKE_CURRENT_BINARY_DIR}/calvix-config-version.cmake"
    DESTINATION "${package_folder}" COMPONENT development)

# pkg-config is told the folders as seen from its own file.
set(pkgconfig_folder "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig")
file(RELATIVE_PATH pc_prefix "${pkgconfig_folder}" "${CMAKE_INSTALL_PREFIX}")
string(REGEX REPLACE "/$" "" pc_prefix "${pc_prefix}")
file(RELATIVE_PATH pc_libdir "${CMAKE_INSTALL_PREFIX}" "${CMAKE_INSTALL_FULL_LIBDIR}")
file(RELATIVE_PATH pc_includedir "${CMAKE_INSTALL_PREFIX}" "${CMAKE_INSTALL_FULL_INCLUDEDIR}")
configure_file(cmake/calvix.pc.in calvix.pc @ONLY)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/calvix.pc"
    DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT development)

# Completion and the manual page are for shells and man, which Windows has none of in fixed places: there the program
# prints them. The page is a copy of what it prints, and the tests compare the two.
if(TARGET calvix_host AND NOT WIN32)
    install(FILES docs/calvix.1 DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT runtime)
    install(FILES cli/shell/completions/calvix.bash RENAME calvix
        DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions" COMPONENT runtime)
    install(FILES cli/shell/completions/_calvix
        DESTINATION "${CMAKE_INSTALL_DATADIR}/zsh/site-functions" COMPONENT runtime)
    install(FILES cli/shell/completions/calvix.fish
        DESTINATION "${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d" COMPONENT runtime)
endif()

install(FILES README.md CHANGELOG.md LICENSE DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT documentation)
install(DIRECTORY docs scenarios examples DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT documentation)
