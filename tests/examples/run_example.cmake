# cmake -DEXPECTED=FILE -DEXIT_CODE=N -P run_example.cmake -- PROGRAM [ARGUMENT...]
#
# Runs the program and compares. Each line of the file is a regular expression for a whole line of the output, standard
# error included; what matches them has to come in their order, and other lines may stand between. Passing is reported in
# the words of the other test programs, so that it is counted.

cmake_minimum_required(VERSION 3.25)

set(command "")
set(after_dashes OFF)
math(EXPR last "${CMAKE_ARGC} - 1")
foreach(index RANGE ${last})
    if(after_dashes)
        list(APPEND command "${CMAKE_ARGV${index}}")
    elseif(CMAKE_ARGV${index} STREQUAL "--")
        set(after_dashes ON)
    endif()
endforeach()

execute_process(COMMAND ${command} OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE exit_code)
string(REPLACE "\r\n" "\n" output "${output}")
message(NOTICE "${output}")
if(NOT exit_code STREQUAL EXIT_CODE)
    message(FATAL_ERROR "exit code ${exit_code} in place of ${EXIT_CODE}")
endif()

file(STRINGS "${EXPECTED}" expressions)
if(NOT expressions)
    message(FATAL_ERROR "${EXPECTED} expects nothing")
endif()
set(rest "\n${output}")
foreach(expression IN LISTS expressions)
    string(REPLACE ".*" "[^\n]*" expression "${expression}")
    if(NOT rest MATCHES "\n${expression}\n(.*)")
        message(FATAL_ERROR "not printed, or not in its place: ${expression}")
    endif()
    # The group of everything behind is the last one; an expression has none of its own.
    set(rest "\n${CMAKE_MATCH_1}")
endforeach()
message(NOTICE "[  PASSED  ] 1 test.")
