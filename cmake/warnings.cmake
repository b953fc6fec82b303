# calvix_warnings(TARGET): the warnings that this project's own code compiles without, as errors.

function(calvix_warnings target)
    if(MSVC)
        target_compile_options(${target} PRIVATE /W4 /WX /permissive- /utf-8)
        return()
    endif()
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Werror
        -Wshadow -Wconversion -Wsign-conversion
        -Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast
        -Wformat=2 -Wno-format-nonliteral)
endfunction()
