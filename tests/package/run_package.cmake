# Installs Calvix, moves the installed tree elsewhere and uses it from there: with find_package, with pkg-config (not for
# Windows), the examples that came with it, and its host program; and as those who must be refused. Called by ctest; see
# CMakeLists.txt for the arguments.

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

# Runs a command that has to fail and to say why.
function(expect_refused reason)
    list(JOIN ARGN " " words)
    message(NOTICE "$ ${words}")
    execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE text ERROR_VARIABLE text RESULT_VARIABLE exit_code)
    if(exit_code STREQUAL "0")
        message(FATAL_ERROR "${text}\nwas not refused")
    endif()
    string(REGEX REPLACE "[ \n]+" " " text "${text}") # CMake breaks lines
    expect_printed("${text}" "${reason}")
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
    set(options -G "${GENERATOR}" "-DCMAKE_MAKE_PROGRAM=${MAKE_PROGRAM}" "-DCMAKE_BUILD_TYPE=${CONFIG}")
    if(TOOLCHAIN)
        list(APPEND options "-DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN}")
    else()
        list(APPEND options "-DCMAKE_CXX_COMPILER=${COMPILER}")
    endif()
    run("${CMAKE_COMMAND}" -S "${source}" -B "${WORK}/${name}" ${options} ${ARGN})
    set(output "${output}" PARENT_SCOPE)
endfunction()

# Builds and runs one program of a configured project; leaves what it printed in `output`.
function(build_and_run name program)
    run("${CMAKE_COMMAND}" --build "${WORK}/${name}" --target ${program} --config ${CONFIG})
    set(folder "${WORK}/${name}")
    if(EXISTS "${folder}/${CONFIG}")
        string(APPEND folder "/${CONFIG}")
    endif()
    if(WINDOWS)
        file(COPY "${tree}/${DATADIR}/calvix/dropin/wlanapi.dll" DESTINATION "${folder}")
    endif()
    run(${EMULATOR} "${folder}/${program}${suffix}")
    set(output "${output}" PARENT_SCOPE)
endfunction()

set(ENV{WINEDLLOVERRIDES} "wlanapi=n")
unset(ENV{CALVIX_SCENARIO})
file(REMOVE_RECURSE "${WORK}")
run("${CMAKE_COMMAND}" --install "${BUILD}" --config ${CONFIG} --prefix "${WORK}/installed")
file(RENAME "${WORK}/installed" "${tree}")
expect_file(include/calvix/wireless_manage.h include/calvix/wlan_functions.h include/calvix/testing/computer.h
    "${DOCDIR}/LICENSE" "${DOCDIR}/README.md" "${DOCDIR}/CHANGELOG.md"
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
if(EXISTS "${WORK}/examples/CTestTestfile.cmake")
    # GoogleTest is installed for this compiler.
    build_and_run(examples station_test)
    expect_printed("${output}" "[  PASSED  ] 7 tests.")
endif()

run(${EMULATOR} "${tree}/bin/calvix${suffix}" networks --scenario "${DRIVE}${tree}/${DOCDIR}/scenarios/office.json")
expect_printed("${output}" "SSID")

# As a part of another project it brings the library, and neither tests nor host nor anything to install.
configure("${CMAKE_CURRENT_LIST_DIR}/consumer" part "-DCALVIX_SOURCE=${SOURCE}")
run("${CMAKE_COMMAND}" --install "${WORK}/part" --config ${CONFIG} --prefix "${WORK}/part-installed")
if(EXISTS "${WORK}/part-installed")
    message(FATAL_ERROR "as a part of another project, Calvix installs files into ${WORK}/part-installed")
endif()

# A build with Visual C++ gets the library of that compiler or none, and a Debug program the Debug library or none.
set(kinds "${CMAKE_COMMAND}" -S "${CMAKE_CURRENT_LIST_DIR}/kinds" "-DCMAKE_MAKE_PROGRAM=${MAKE_PROGRAM}")
set(package "${LIBDIR}/cmake/calvix")
if(NOT ABI STREQUAL "windows-x64-msvc")
    expect_refused("holds Calvix for ${ABI}; this build is for windows-x64-msvc, where C++ classes look different."
        ${kinds} -G "${GENERATOR}" -B "${WORK}/other-compiler" "-Dcalvix_DIR=${tree}/${package}")
    # The same tree, as that compiler would have made it.
    file(COPY "${tree}/" DESTINATION "${WORK}/as-msvc")
    file(READ "${tree}/${package}/calvix-config.cmake" text)
    string(REPLACE "set(calvix_abi ${ABI})" "set(calvix_abi windows-x64-msvc)" text "${text}")
    file(WRITE "${WORK}/as-msvc/${package}/calvix-config.cmake" "${text}")
    set(tree "${WORK}/as-msvc")
endif()
set(here Release)
set(absent Debug)
if(CONFIG STREQUAL "Debug")
    set(here Debug)
    set(absent Release)
endif()
list(APPEND kinds "-Dcalvix_DIR=${tree}/${package}")
if(GENERATOR STREQUAL "Ninja")
    run(${kinds} -G Ninja -B "${WORK}/kind-here" -DCMAKE_BUILD_TYPE=${here})
    expect_refused("holds no ${absent} library, and a ${absent} program of Visual C++ cannot use the other one"
        ${kinds} -G Ninja -B "${WORK}/kind-absent" -DCMAKE_BUILD_TYPE=${absent})
endif()
if(GENERATOR MATCHES "^Ninja")
    run(${kinds} -G "Ninja Multi-Config" -B "${WORK}/kinds")
    string(REGEX MATCH "Release: ([^\n]*)" line "${output}")
    set(Release "${CMAKE_MATCH_1}")
    string(REGEX MATCH "Debug: ([^\n]*)" line "${output}")
    set(Debug "${CMAKE_MATCH_1}")
    if(NOT EXISTS "${${here}}" OR EXISTS "${${absent}}")
        message(FATAL_ERROR "${output}\nis not what these kinds of programs have to be given")
    endif()
endif()
set(tree "${WORK}/moved")

if(WINDOWS)
    # Without the libraries that the simulated computer is made with.
    configure("${SOURCE}" bare -DCMAKE_DISABLE_FIND_PACKAGE_nlohmann_json=ON -DCALVIX_nlohmann_json_FOLDER=)
    string(REGEX REPLACE "[ \n]+" " " output "${output}")
    expect_printed("${output}" "nlohmann_json not found: the library is built, and the simulated computer")
endif()

if(NOT WINDOWS)
    find_program(pkg_config NAMES pkg-config pkgconf REQUIRED)
    set(ENV{PKG_CONFIG_PATH} "${tree}/${LIBDIR}/pkgconfig")
    run("${pkg_config}" --modversion calvix)
    expect_printed("${output}" "${VERSION}")
    run("${pkg_config}" --cflags --libs calvix)
    separate_arguments(flags UNIX_COMMAND "${output}")
    run("${COMPILER}" -std=c++20 "${CMAKE_CURRENT_LIST_DIR}/consumer/main.cpp" ${flags} -lcalvix_explain -lwlanapi
        -o "${WORK}/by-pkg-config")
    set(ENV{LD_LIBRARY_PATH} "${tree}/${LIBDIR}")
    run("${WORK}/by-pkg-config")
    expect_printed("${output}" "${expected}")
endif()
message(NOTICE "[  PASSED  ] 1 test.")
