# What every target of this project is built with, and where its output goes.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_SCAN_FOR_MODULES OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")

# Optional: ccache makes repeated builds fast. The environment lets it look through precompiled headers and share
# results between build folders.
find_program(CALVIX_CCACHE ccache)
mark_as_advanced(CALVIX_CCACHE)
if(CALVIX_CCACHE AND (NOT CMAKE_CXX_COMPILER_LAUNCHER OR CMAKE_CXX_COMPILER_LAUNCHER STREQUAL "ccache"))
    set(CMAKE_CXX_COMPILER_LAUNCHER
        "${CMAKE_COMMAND}" -E env
        CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
        CCACHE_NOHASHDIR=true
        "${CALVIX_CCACHE}")
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        add_compile_options(-fpch-preprocess)
    endif()
endif()

if(CALVIX_SANITIZE)
    add_compile_options(-fsanitize=${CALVIX_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${CALVIX_SANITIZE})
endif()
if(CALVIX_COVERAGE)
    add_compile_options(--coverage -fprofile-update=atomic)
    add_link_options(--coverage)
endif()

# The standard headers that most sources include, read once a target. Off in the native world, where a source that forgot
# an include is to be noticed.
function(calvix_precompile target)
    if(CALVIX_PRECOMPILE)
        target_precompile_headers(${target} PRIVATE <calvix/platform_records.h>
            <algorithm> <array> <chrono> <functional> <map> <memory> <optional> <string> <string_view> <unordered_map>
            <vector>)
    endif()
endfunction()

# Sources are globbed at every build, so that a new file needs no line here: calvix_glob(RESULT FOLDER...) finds the
# .cpp files in and below the folders, and an absent folder holds none.
function(calvix_glob result)
    set(patterns ${ARGN})
    list(TRANSFORM patterns APPEND "/*.cpp")
    file(GLOB_RECURSE found CONFIGURE_DEPENDS ${patterns})
    set(${result} "${found}" PARENT_SCOPE)
endfunction()
