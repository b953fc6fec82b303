# Installs Calvix, moves the installed tree elsewhere and uses it from there: with find_package, with pkg-config (not for
# Windows), the examples that came with it, and its host program. Called by ctest; see CMakeLists.txt for the arguments.

cmake_minimum_required(VERSION 3.25)

set(tree "${WORK}/moved")
set(suffix "")
if(WINDOWS)
    set(suffix .exe)
endif()
set(expected "1 adapter, the first: Calvix Simulated Wi-Fi 6E Adapter")

# Runs a command and keeps what it prints in `output`; ends the test when the command fails.
function(run)
    list(JOIN ARGN " " words)
    message(NOTICE "$ ${words}")
    execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE text ERROR_VARIABLE text RESULT_VARIABLE exit_code)
    if(NOT exit_code STREQUAL "0")
        message(FATAL_ERROR "${text}\nfailed: ${exit_code}")
    endif()
    set(output "${text}" PARENT_SCOPE)
endfunction()

function(expect_printed text expectation)
    string(FIND "${text}" "${expectation}" position)
    if(position EQUAL -1)
        message(FATAL_ERROR "${text}\ndoes not hold: ${expectation}")
    endif()
    message(NOTICE "${expectation}")
endfunction()

function(expect_file)
    foreach(file IN LISTS ARGN)
        if(NOT EXISTS "${tree}/${file}")
            message(FATAL_ERROR "not installed: ${file}")
        endif()
    endforeach()
endfunction()

# What CMake and pkg-config read must not know where anything was built or installed.
function(expect_movable)
    file(GLOB_RECURSE files "${tree}/${LIBDIR}/*.cmake" "${tree}/${LIBDIR}/*.pc")
    foreach(file IN LISTS files)
        file(READ "${file}" text)
        foreach(folder IN ITEMS "${WORK}" "${BUILD}" "${SOURCE}")
            string(FIND "${text}" "${folder}" position)
            if(NOT position EQUAL -1)
                message(FATAL_ERROR "${file} names ${folder}")
            endif()
        endforeach()
    endforeach()
endfunction()

# Configures a project as its own build; further arguments go to CMake.
function(configure source name)
    set(options -G "${GENERATOR}" "-DCMAKE_MAKE_PROGRAM=${MAKE_PROGRAM}" -DCMAKE_BUILD_TYPE=Release)
    if(TOOLCHAIN)
        list(APPEND options "-DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN}")
    else()
        list(APPEND options "-DCMAKE_CXX_COMPILER=${COMPILER}")
    endif()
    run("${CMAKE_COMMAND}" -S "${source}" -B "${WORK}/${name}" ${options} ${ARGN})
endfunction()

# Builds and runs one program of a configured project; leaves what it printed in `output`.
function(build_and_run name program)
    run("${CMAKE_COMMAND}" --build "${WORK}/${name}" --target ${program})
    if(WINDOWS)
        file(COPY "${tree}/${DATADIR}/calvix/dropin/wlanapi.dll" DESTINATION "${WORK}/${name}")
    endif()
    run(${EMULATOR} "${WORK}/${name}/${program}${suffix}")
    set(output "${output}" PARENT_SCOPE)
endfunction()

set(ENV{WINEDLLOVERRIDES} "wlanapi=n")
unset(ENV{CALVIX_SCENARIO})
file(REMOVE_RECURSE "${WORK}")
run("${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${WORK}/installed")
file(RENAME "${WORK}/installed" "${tree}")
expect_file(include/calvix/wireless_manage.h include/calvix/wlan_functions.h "${DOCDIR}/LICENSE" "${DOCDIR}/README.md" "${DOCDIR}/CHANGELOG.md"
    "${DOCDIR}/docs/architecture.md" "${DOCDIR}/docs/scenario.schema.json" "${DOCDIR}/scenarios/home.json"
    "${DOCDIR}/docs/output.schema.json" "${DOCDIR}/docs/troubleshooting.md")
if(NOT WINDOWS)
    expect_file("${DATADIR}/man/man1/calvix.1" "${DATADIR}/bash-completion/completions/calvix"
        "${DATADIR}/zsh/site-functions/_calvix" "${DATADIR}/fish/vendor_completions.d/calvix.fish")
endif()
expect_movable()

configure("${CMAKE_CURRENT_LIST_DIR}/consumer" consumer "-DCMAKE_PREFIX_PATH=${tree}" "-DEXPECTED_VERSION=${VERSION}")
build_and_run(consumer consumer)
expect_printed("${output}" "${expected}")

configure("${tree}/${DOCDIR}/examples" examples "-DCMAKE_PREFIX_PATH=${tree}")
build_and_run(examples list_networks)
expect_printed("${output}" "4 networks in view, 4 access points of stored ones")

run(${EMULATOR} "${tree}/bin/calvix${suffix}" networks --scenario "${DRIVE}${tree}/${DOCDIR}/scenarios/office.json")
expect_printed("${output}" "SSID")

# As a part of another project it brings the library, and neither tests nor host nor anything to install.
configure("${CMAKE_CURRENT_LIST_DIR}/consumer" part "-DCALVIX_SOURCE=${SOURCE}")
run("${CMAKE_COMMAND}" --install "${WORK}/part" --prefix "${WORK}/part-installed")
if(EXISTS "${WORK}/part-installed")
    message(FATAL_ERROR "as a part of another project, Calvix installs files into ${WORK}/part-installed")
endif()

if(NOT WINDOWS)
    find_program(pkg_config NAMES pkg-config pkgconf REQUIRED)
    set(ENV{PKG_CONFIG_PATH} "${tree}/${LIBDIR}/pkgconfig")
    run("${pkg_config}" --modversion calvix)
    expect_printed("${output}" "${VERSION}")
    run("${pkg_config}" --cflags --libs calvix)
    separate_arguments(flags UNIX_COMMAND "${output}")
    run("${COMPILER}" -std=c++20 "${CMAKE_CURRENT_LIST_DIR}/consumer/main.cpp" ${flags} -lwlanapi
        -o "${WORK}/by-pkg-config")
    set(ENV{LD_LIBRARY_PATH} "${tree}/${LIBDIR}")
    run("${WORK}/by-pkg-config")
    expect_printed("${output}" "${expected}")
endif()
message(NOTICE "[  PASSED  ] 1 test.")
