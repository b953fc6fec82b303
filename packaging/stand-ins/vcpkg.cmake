# Runs the port as vcpkg would, for one build type: cmake -DPORT_FOLDER=... -DWORK=... -DHEADERS=... [-DFEATURES=...] -P
# The functions do what vcpkg's own of the same names are documented to do, as far as the port relies on it.

cmake_minimum_required(VERSION 3.25)
set(PORT calvix)
set(CURRENT_PACKAGES_DIR "${WORK}/package")
set(CURRENT_INSTALLED_DIR "${HEADERS}")

function(vcpkg_check_linkage)
endfunction()

function(vcpkg_check_features)
    cmake_parse_arguments(PARSE_ARGV 0 arg "" "OUT_FEATURE_OPTIONS" "FEATURES")
    list(GET arg_FEATURES 0 feature)
    list(GET arg_FEATURES 1 option)
    set(value OFF)
    if(feature IN_LIST FEATURES)
        set(value ON)
    endif()
    set(${arg_OUT_FEATURE_OPTIONS} "-D${option}=${value}" PARENT_SCOPE)
endfunction()

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE exit_code OUTPUT_QUIET)
    if(NOT exit_code STREQUAL "0")
        list(JOIN ARGN " " words)
        message(FATAL_ERROR "${words}: ${exit_code}")
    endif()
endfunction()

function(vcpkg_cmake_configure)
    cmake_parse_arguments(PARSE_ARGV 0 arg "" "SOURCE_PATH" "OPTIONS")
    run("${CMAKE_COMMAND}" -S "${arg_SOURCE_PATH}" -B "${WORK}/build" -G Ninja -DCMAKE_BUILD_TYPE=Release
        "-DCMAKE_INSTALL_PREFIX=${CURRENT_PACKAGES_DIR}" -DCMAKE_INSTALL_LIBDIR=lib -DCALVIX_UNITY=ON ${arg_OPTIONS})
endfunction()

function(vcpkg_cmake_install)
    run("${CMAKE_COMMAND}" --build "${WORK}/build")
    run("${CMAKE_COMMAND}" --install "${WORK}/build")
endfunction()

function(vcpkg_cmake_config_fixup)
    cmake_parse_arguments(PARSE_ARGV 0 arg "" "CONFIG_PATH" "")
    file(GLOB files "${CURRENT_PACKAGES_DIR}/${arg_CONFIG_PATH}/*")
    if(NOT files)
        message(FATAL_ERROR "there is nothing in ${arg_CONFIG_PATH}")
    endif()
    file(MAKE_DIRECTORY "${CURRENT_PACKAGES_DIR}/share")
    file(RENAME "${CURRENT_PACKAGES_DIR}/${arg_CONFIG_PATH}" "${CURRENT_PACKAGES_DIR}/share/${PORT}")
    foreach(file IN LISTS files)
        get_filename_component(name "${file}" NAME)
        file(READ "${CURRENT_PACKAGES_DIR}/share/${PORT}/${name}" text)
        # The files are one folder nearer to the root now.
        string(REPLACE "/../../../" "/../../" text "${text}")
        string(REPLACE [[
get_filename_component(_IMPORT_PREFIX "${_IMPORT_PREFIX}" PATH)
get_filename_component(_IMPORT_PREFIX "${_IMPORT_PREFIX}" PATH)
get_filename_component(_IMPORT_PREFIX "${_IMPORT_PREFIX}" PATH)
]] [[
get_filename_component(_IMPORT_PREFIX "${_IMPORT_PREFIX}" PATH)
get_filename_component(_IMPORT_PREFIX "${_IMPORT_PREFIX}" PATH)
]] text "${text}")
        file(WRITE "${CURRENT_PACKAGES_DIR}/share/${PORT}/${name}" "${text}")
    endforeach()
endfunction()

function(vcpkg_fixup_pkgconfig)
    if(NOT EXISTS "${CURRENT_PACKAGES_DIR}/lib/pkgconfig/${PORT}.pc")
        message(FATAL_ERROR "there is no lib/pkgconfig/${PORT}.pc")
    endif()
endfunction()

function(vcpkg_copy_tools)
    cmake_parse_arguments(PARSE_ARGV 0 arg "AUTO_CLEAN" "" "TOOL_NAMES")
    foreach(tool IN LISTS arg_TOOL_NAMES)
        file(MAKE_DIRECTORY "${CURRENT_PACKAGES_DIR}/tools/${PORT}")
        file(RENAME "${CURRENT_PACKAGES_DIR}/bin/${tool}" "${CURRENT_PACKAGES_DIR}/tools/${PORT}/${tool}")
    endforeach()
endfunction()

function(vcpkg_install_copyright)
    cmake_parse_arguments(PARSE_ARGV 0 arg "" "" "FILE_LIST")
    file(INSTALL ${arg_FILE_LIST} DESTINATION "${CURRENT_PACKAGES_DIR}/share/${PORT}")
    file(RENAME "${CURRENT_PACKAGES_DIR}/share/${PORT}/LICENSE" "${CURRENT_PACKAGES_DIR}/share/${PORT}/copyright")
endfunction()

include("${PORT_FOLDER}/portfile.cmake")
