# What every target of this project is built with, and where its output goes.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_SCAN_FOR_MODULES OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
if(NOT CALVIX_SHARED_CORE)
    set(CMAKE_CXX_VISIBILITY_PRESET hidden)
    set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
endif()

# A generator with several configurations puts a folder for each behind these.
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

# GNU ar takes longer over the many sections of mingw's object files than the compiler takes to make them.
find_program(CALVIX_LLD_LINK lld-link)
mark_as_advanced(CALVIX_LLD_LINK)
if(MINGW AND CALVIX_LLD_LINK)
    set(CMAKE_CXX_ARCHIVE_CREATE "\"${CALVIX_LLD_LINK}\" /lib /out:<TARGET> <OBJECTS>")
    set(CMAKE_CXX_ARCHIVE_FINISH "")
endif()

if(MSVC)
    add_compile_options(/permissive- /utf-8 /Zc:__cplusplus /EHsc)
endif()
if(CALVIX_SANITIZE AND MSVC)
    # This compiler has one of them.
    if(NOT CALVIX_SANITIZE STREQUAL "address")
        message(FATAL_ERROR "Visual C++ knows CALVIX_SANITIZE=address only, not ${CALVIX_SANITIZE}")
    endif()
    add_compile_options(/fsanitize=address)
elseif(CALVIX_SANITIZE)
    add_compile_options(-fsanitize=${CALVIX_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${CALVIX_SANITIZE})
    if(CALVIX_SANITIZE MATCHES "address")
        add_compile_definitions(CALVIX_ADDRESS_SANITIZER) # each compiler has a sign of its own for it
    elseif(CALVIX_SANITIZE MATCHES "thread")
        add_compile_definitions(CALVIX_THREAD_SANITIZER)
    endif()
endif()
if(CALVIX_COVERAGE AND MSVC)
    message(FATAL_ERROR "CALVIX_COVERAGE needs GCC or clang: build with the preset coverage on Linux")
elseif(CALVIX_COVERAGE)
    add_compile_options(--coverage -fprofile-update=atomic)
    add_link_options(--coverage)
endif()

# calvix_unity(TARGET BATCH): compiles the target's sources BATCH at a time as one, which more than halves a build from
# scratch: what they include is read once, and what they instantiate is compiled once. Names in anonymous namespaces must
# therefore be distinct within a target. The presets for measuring and for coverage compile the product's sources one by
# one, where a source that forgot an include is noticed.
function(calvix_unity target batch)
    if(CALVIX_UNITY)
        set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE ${batch})
        if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
            # To the compiler a source is now an included file, in which anonymous namespaces look like a mistake.
            target_compile_options(${target} PRIVATE -Wno-subobject-linkage)
        endif()
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
