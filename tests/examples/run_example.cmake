# cmake -DEXPECTED=FILE -DEXIT_CODE=N -P run_example.cmake -- PROGRAM [ARGUMENT...]
#
# Runs the program and compares its output, standard error included, with the file: each line is a regular expression for
# a line, and one of three dots stands for any lines. Passing is reported in the words of the other test programs, so that
# it is counted.

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

file(READ "${EXPECTED}" expected)
if(NOT expected)
    message(FATAL_ERROR "${EXPECTED} expects nothing")
endif()
string(REGEX REPLACE "(^|\n)\\.\\.\\.\n" "\\1([^\n]*\n)*" expected "${expected}")
string(REPLACE ".*" "[^\n]*" expected "${expected}")
if(NOT output MATCHES "^${expected}$")
    message(FATAL_ERROR "not what is expected:\n${expected}")
endif()
message(NOTICE "[  PASSED  ] 1 test.")
