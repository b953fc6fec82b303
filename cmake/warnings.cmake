# calvix_warnings(TARGET): the warnings that this project's own code compiles without; as errors where its tests are built,
# too, with the compilers that they are known from. Whoever only builds and installs it may have a compiler that knows more.

set(CALVIX_WARNINGS_ARE_ERRORS OFF)
if(calvix_IS_TOP_LEVEL AND CALVIX_BUILD_TESTS AND NOT CALVIX_BUILD_FUZZERS)
    set(CALVIX_WARNINGS_ARE_ERRORS ON)
endif()

function(calvix_warnings target)
    if(MSVC)
        target_compile_options(${target} PRIVATE /W4 $<$<BOOL:${CALVIX_WARNINGS_ARE_ERRORS}>:/WX>)
        return()
    endif()
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic $<$<BOOL:${CALVIX_WARNINGS_ARE_ERRORS}>:-Werror>
        -Wshadow -Wconversion -Wsign-conversion
        -Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast
        -Wformat=2 -Wno-format-nonliteral)
endfunction()
