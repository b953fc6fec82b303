# calvix_warnings(TARGET): the warnings that this project's own code compiles without, as errors; as mere warnings where
# the project is part of another one, whose compiler may know more of them.

function(calvix_warnings target)
    if(MSVC)
        target_compile_options(${target} PRIVATE /W4 $<$<BOOL:${calvix_IS_TOP_LEVEL}>:/WX> /permissive- /utf-8)
        return()
    endif()
    # The fuzzing programs are built with another compiler than everything else, whose opinions must not stop them.
    set(errors ${calvix_IS_TOP_LEVEL})
    if(CALVIX_BUILD_FUZZERS)
        set(errors OFF)
    endif()
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic $<$<BOOL:${errors}>:-Werror>
        -Wshadow -Wconversion -Wsign-conversion
        -Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast
        -Wformat=2 -Wno-format-nonliteral)
endfunction()
